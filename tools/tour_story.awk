# Tells the story of a tour: what was done and asked, without the dialogs; at the end the blocks whose number of
# references changed. The first LIST after a start or an OPEN counts as before, the last one as after.
function summary(   i, name, was) {
    if (!lists) return
    printf "\n   %-20s %9s %9s\n", "references of", "before", "after"
    for (i = 1; i <= names; ++i) {
        name = order[i]
        was = (name in before) ? before[name] : "-"
        if (was != after[name]) printf "   %-20s %9s %9s\n", name, was, after[name]
    }
    print ""
    split("", before); split("", after); split("", order); names = lists = 0
}
/^References +Block$/ { ++lists; listing = 1; next }
listing && /^ +[0-9]+  / {
    name = $2
    if (!(name in after)) order[++names] = name
    if (lists == 1) before[name] = $1
    after[name] = $1
    next
}
{ listing = 0 }
/^Command: OPEN/ { summary() }
/^Command: LIST/ || /^  / || /^\[fm/ || /^Opened / || /^The changes to / { next }
/^;/ { sub(/^; ?/, ""); print ($0 == "" ? "" : "== " $0); next }
{ print "   " $0 }
END { summary() }
