vorlane-console: drawing.dwg: this is a DWG drawing, not a DXF drawing
vorlane-console: picture.dxf: this is a PNG picture, not a DXF drawing
vorlane-console: truncated_entities.dxf:21: the file breaks off in section ENTITIES
vorlane-console: shifted.dxf:23: a group code should stand here, not "0.0"
