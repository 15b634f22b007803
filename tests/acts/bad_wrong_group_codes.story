vorlane-console: shifted.dxf:23: a group code should stand here, not "0.0"
