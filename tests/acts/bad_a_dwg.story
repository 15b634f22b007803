vorlane-console: drawing.dwg: this is a DWG drawing, not a DXF drawing
