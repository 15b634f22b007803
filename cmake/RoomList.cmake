# The rooms in order of flow, each with the rooms that it may include. This is the one list: the build
# links by it and the include check reads it.

vorlane_room(basic src/basic)
vorlane_room(forms src/forms LINKS basic)
vorlane_room(host src/host LINKS basic)
vorlane_room(platform src/platform LINKS basic)
vorlane_room(session src/session LINKS host platform forms)
vorlane_room(language src/language LINKS session)
vorlane_room(blocks src/blocks LINKS language)
vorlane_room(replace src/replace LINKS blocks)
vorlane_room(labels src/labels LINKS blocks)
vorlane_room(extract src/extract LINKS blocks)
vorlane_room(about src/about LINKS language)
target_compile_definitions(about PUBLIC VORLANE_SITE="${VORLANE_SITE}")
vorlane_room(entry src/entry LINKS replace labels extract about)

vorlane_room(text_face faces/text LINKS forms)

vorlane_room(dxf desk/dxf LINKS basic)
vorlane_room(drawing desk/drawing LINKS dxf)
vorlane_room(model desk/model LINKS drawing host)
vorlane_room(lisp desk/lisp LINKS host)
vorlane_room(shell desk/shell LINKS entry model lisp)
target_compile_definitions(shell PRIVATE VORLANE_RESOURCES="${PROJECT_SOURCE_DIR}/resources")
vorlane_room(console desk/console LINKS shell text_face)

vorlane_program(vorlane-console desk/console console)
