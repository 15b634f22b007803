vorlane-console: FOLDER/drawing.dwg is a DWG file, and no converter is installed: "tools/setup.sh --dwg" installs one, or dwg2dxf (of LibreDWG) or ODAFileConverter is needed on PATH
vorlane-console: picture.dxf: this is a PNG picture, not a DXF drawing
vorlane-console: truncated_entities.dxf:21: the file breaks off in section ENTITIES
vorlane-console: shifted.dxf:23: a group code should stand here, not "0.0"
