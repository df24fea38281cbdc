# Doxygen's filter for headers. A comment documents all declarations below it up to a blank line or the
# next comment, as a getter and its setter; Doxygen would use it for the first of them only. Left out are
# overrides that Qt calls, and properties, whose functions are documented.
/^ *(void|bool|QSize) ([A-Za-z]*[eE]vent|eventFilter|connectNotify|disconnectNotify|sizeHint)\(.*override/ { next }
/^ *Q_PROPERTY\(/ { inProperty = 1 }
inProperty { if (/\)$/) inProperty = 0; next }
body != "" { print; if ($0 == body) { body = ""; whole = 1 } next }
{
  text = $0
  sub(/^[ \t]+/, "", text)
  if (text ~ /^\/\/\//) {
    comment = declared ? $0 : comment (comment == "" ? "" : "\n") $0
    declared = 0
    whole = 1
  } else if (text == "" || text ~ /^(\/\/|#|}|public:|private:|protected:|template)/) {
    comment = ""
    declared = 0
  } else {
    if (declared && whole && comment != "") print comment
    declared = 1
    whole = text ~ /[;}]$/ || text ~ /; *\/\/\/</
    if (text ~ /^(class|struct|enum|namespace)/) comment = ""
    else if (text ~ /\(.*{$/) body = substr($0, 1, length($0) - length(text)) "}"
  }
  print
}
