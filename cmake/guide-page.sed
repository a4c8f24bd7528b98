# Makes docs/guide.md a page of the reference: doxygen is told the anchors of the headings, which
# others make by themselves, and the documents beside the guide are seen from the folder of the pages.
1s/$/ {#guide}/
/^## /{
h
s/^## //
s/[^A-Za-z0-9 -]//g
s/ /-/g
s/.*/\L&/
x
G
s/\n(.*)/ {#\1}/
}
s,!\[([^][]*)\]\(([A-Za-z0-9._/-]+)\),<img src="../docs/\2" alt="\1">,g
s,\[([^][]+)\]\(([A-Za-z0-9._/-]+(#[a-z-]+)?)\),<a href="../docs/\2">\1</a>,g
