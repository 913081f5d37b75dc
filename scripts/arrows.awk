# Reads all sources; see check_arrows.

BEGIN {
  # Each room and the rooms that it may include directly; what those may include it may include too.
  arrows["app"] = "mainwindows"
  arrows["mainwindows"] = "toolwindow controls toolbar progressbar"
  arrows["toolwindow"] = "renderer controls"
  arrows["toolbar"] = "controls platform"
  arrows["progressbar"] = "controls platform"
  arrows["controls"] = "platform"
  arrows["renderer"] = "themefiles"
  arrows["themecheck"] = "renderer"
  arrows["themefiles"] = "platform"
  arrows["platform"] = ""
  for (room in arrows) reach(room, room)
  windowless["platform"] = windowless["themefiles"] = windowless["renderer"] = windowless["themecheck"] = 1
  listWidgetHeaders()
}

function reach(from, room,    count, next_rooms, i) {
  allowed[from, room] = 1
  count = split(arrows[room], next_rooms, " ")
  for (i = 1; i <= count; ++i) reach(from, next_rooms[i])
}

# The headers of the library of windows: those in its folder, by name.
function listWidgetHeaders(    command, name) {
  command = "ls $(find /usr/include -maxdepth 3 -type d -name QtWidgets) 2>/dev/null"
  while ((command | getline name) > 0) isWidgetHeader[name] = 1
  close(command)
  if ("QWidget" in isWidgetHeader) return
  print "check_arrows: the Widgets headers aren't installed"
  failed = 1
}

function complain(text) {
  printf "%s:%d: %s\n", FILENAME, FNR, text
  failed = 1
}

FNR == 1 {
  part = FILENAME
  sub(/\/.*/, "", part)
  room = FILENAME
  sub(/^src\//, "", room)
  room = part == "src" ? substr(room, 1, index(room, "/") - 1) : ""
  if (part == "src" && !(room in arrows)) complain("'" room "' is no room")
}

/^[ \t]*#[ \t]*include[ \t]*"[a-z_]+\// {
  header = $0
  gsub(/^[^"]*"|".*$/, "", header)
  target = header
  sub(/\/.*/, "", target)
  if (!(target in arrows)) next  # a tool's own folder
  if (room != "" && !((room, target) in allowed)) complain("no arrow leads from " room " to " target ": " header)
  if (target == "app") complain("nothing includes app: " header)
  if (part == "src") addEdge(unit(FILENAME), unit("src/" header), FILENAME ":" FNR)
}

part == "src" && /^[ \t]*#[ \t]*include[ \t]*"/ && !/"[a-z_]+\/[a-z_]+\.h"|\.moc"/ {
  complain("an include names a room and a file: " $0)
}

/^[ \t]*#[ \t]*include[ \t]*<Q/ && room in windowless {
  header = $0
  gsub(/^[^<]*<|>.*$/, "", header)
  if (header ~ /^QtWidgets/ || header in isWidgetHeader) complain(room " is a room without windows: " header)
}

# A header and its source are one.
function unit(file) {
  sub(/\.(h|cpp)$/, "", file)
  return file
}

function addEdge(from, to, line) {
  if (from == to || (from, to) in where) return
  where[from, to] = line
  edges[from] = edges[from] " " to
}

function walk(file, path,    count, targets, i) {
  state[file] = "open"
  count = split(edges[file], targets, " ")
  for (i = 1; i <= count; ++i) {
    if (state[targets[i]] == "open") {
      printf "%s: closes a cycle:%s %s %s\n", where[file, targets[i]], path, file, targets[i]
      failed = 1
    } else if (state[targets[i]] == "") {
      walk(targets[i], path " " file)
    }
  }
  state[file] = "done"
}

END {
  for (file in edges) if (state[file] == "") walk(file, "")
  exit failed
}
