# Turns the C++ in documents into functions that a compiler can check: each block of ```cpp, and the calls
# of the list in tables. Left out are blocks marked "cpp fragment", and whole programs, which are examples.
BEGIN { print "#include <SnippetContext.h>" }

/^```/ {
  if (block != "" && block !~ /int main/) print "struct Snippet" ++count " : Window { void run() {\n" block "} };"
  block = $0 == "```cpp" ? "#line " FNR + 1 " \"" FILENAME "\"\n" : ""
  next
}
block != "" { block = block (/^#include/ ? "" : $0) "\n" }

/^\|/ {
  for (rest = $0; match(rest, /`list\.[^`]*\)`/); rest = substr(rest, RSTART + RLENGTH))
    calls = calls "#line " FNR " \"" FILENAME "\"\n" substr(rest, RSTART + 1, RLENGTH - 2) ";\n"
}
END { if (calls != "") print "struct Calls : Window { void run() {\n" calls "} };" }
