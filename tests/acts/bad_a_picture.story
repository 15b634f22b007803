vorlane-console: picture.dxf: this is a PNG picture, not a DXF drawing
