# The types that C++ files define in named namespaces or in none: "NAMESPACE::NAME FILE:LINE", a line each. Not those
# inside anonymous namespaces, other types or functions, which no other file can mean.

function begin_file() { depth = 0; head = ""; in_comment = 0; in_raw = 0; continued = 0 }

# The text of a line without comments, strings and characters, which may go on from and into other lines.
function code_of(line,    code, at, c, two, end) {
  code = ""
  for (at = 1; at <= length(line); at++) {
    if (in_comment) {
      end = index(substr(line, at), "*/")
      if (!end) return code
      at += end; in_comment = 0
    } else if (in_raw) {
      end = index(substr(line, at), raw_end)
      if (!end) return code
      at += end + length(raw_end) - 2; in_raw = 0
    } else {
      c = substr(line, at, 1); two = substr(line, at, 2)
      if (two == "//") return code
      if (two == "/*") { in_comment = 1; at++ }
      else if (c == "\"" && code ~ /(^|[^A-Za-z0-9_])(u8|u|U|L)?R$/) {
        end = index(substr(line, at), "(")
        raw_end = ")" substr(line, at + 1, end - 2) "\""
        in_raw = 1; at += end - 1
      }
      else if (c == "\"") at = end_of_quote(line, at, c)
      else if (c == "'" && code !~ /(^|[^A-Za-z0-9_])[0-9][0-9A-Za-z.]*$/) at = end_of_quote(line, at, c)
      else if (c != "'") code = code c
    }
  }
  return code
}

function end_of_quote(line, at, quote,    c) {
  for (at++; at <= length(line); at++) {
    c = substr(line, at, 1)
    if (c == "\\") at++
    else if (c == quote) return at
  }
  return at
}

# What stands before a "{": the name of a namespace ("" for an anonymous one), or that of a type that is defined.
function namespace_in(head) {
  if (head !~ /^(inline )?namespace( |$)/) return "none"
  sub(/^(inline )?namespace */, "", head)
  return head == "" ? "anonymous" : "named " head
}

function after_angles(head,    at, open, c) {
  for (at = 1; at <= length(head); at++) {
    c = substr(head, at, 1)
    if (c == "<") open++
    else if (c == ">" && --open == 0) break
  }
  head = substr(head, at + 1)
  sub(/^ +/, "", head)
  return head
}

function type_in(head) {
  while (head ~ /^template *</) head = after_angles(head)
  gsub(/\[\[[^]]*\]\]/, "", head)
  if (head !~ /^(class|struct|union|enum) / || head ~ /[(=]/) return ""
  sub(/^enum (class|struct) +|^(class|struct|union|enum) +/, "", head)
  gsub(/::/, "|", head)
  sub(/ *:.*$| final.*$/, "", head)
  gsub(/ /, "", head); gsub(/[|]/, "::", head)
  return head
}

function open_brace(    space, name) {
  sub(/^ +/, "", head); sub(/ +$/, "", head)
  space = namespace_in(head)
  kind[++depth] = "other"; prefix[depth] = prefix[depth - 1]
  if (depth > 1 && kind[depth - 1] == "other") return
  if (head == "extern") kind[depth] = "space"
  else if (space ~ /^named /) { kind[depth] = "space"; prefix[depth] = prefix[depth] substr(space, 7) "::" }
  else if (space == "none") {
    name = type_in(head)
    if (name != "") print prefix[depth] name, FILENAME ":" FNR
  }
}

FNR == 1 { begin_file() }
{
  code = code_of($0)
  if (continued || code ~ /^ *#/) { continued = code ~ /\\$/; next }
  gsub(/[ \t]+/, " ", code)
  while (match(code, /[{};]/)) {
    c = substr(code, RSTART, 1)
    head = head substr(code, 1, RSTART - 1)
    code = substr(code, RSTART + 1)
    if (c == "{") open_brace()
    else if (c == "}" && depth > 0) depth--
    head = ""
  }
  head = head code " "
}
