# Reads all sources; see check_arrows.

BEGIN {
  for (file = 1; file < ARGC; ++file) {
    if (ARGV[file] ~ /CMakeLists\.txt$/) readBuild(ARGV[file])
  }
  for (room in isRoom) reach(room, room)
  listWidgetHeaders()
}

# The build tells each room, the rooms that it uses (what those use it may use too), and whether it has windows.
function readBuild(file,    line, name) {
  name = file
  gsub(/^src\/|\/CMakeLists\.txt$/, "", name)
  isRoom[name] = 1
  windowless[name] = 1
  while ((getline line < file) > 0) {
    if (line ~ /^ *QT .*Widgets/) delete windowless[name]
    if (line ~ /^ *USES / || line ~ /^target_link_libraries\(cantorama-theme-edit /) {
      gsub(/^ *USES |^.* assets |\)/, "", line)
      arrows[name] = line
      if (line ~ /mainwindows/) delete windowless[name]
    }
  }
  close(file)
}

# The picture of the rooms in the documents has the arrows of the build, and no other.
FILENAME ~ /\.md$/ {
  if ($2 == "-->" && NF == 3) drawn[$1, $3] = FILENAME ":" FNR
  next
}

FILENAME ~ /CMakeLists\.txt$/ { next }

function comparePicture(    room, count, targets, i, pair, ends) {
  for (room in isRoom) {
    count = split(arrows[room], targets, " ")
    for (i = 1; i <= count; ++i) {
      if (!((room, targets[i]) in drawn)) say("the picture of the rooms lacks " room " --> " targets[i])
      if (!((room, targets[i]) in used)) say("nothing in " room " includes " targets[i] ", which the build lets it use")
      delete drawn[room, targets[i]]
    }
  }
  for (pair in drawn) {
    split(pair, ends, SUBSEP)
    say(drawn[pair] ": the build has no arrow " ends[1] " --> " ends[2])
  }
}

function say(text) {
  print text
  failed = 1
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
  say(FILENAME ":" FNR ": " text)
}

FNR == 1 {
  part = FILENAME
  sub(/\/.*/, "", part)
  room = FILENAME
  sub(/^src\//, "", room)
  room = part == "src" ? substr(room, 1, index(room, "/") - 1) : ""
  if (part == "src" && !(room in isRoom)) complain("'" room "' is no room")
}

/^[ \t]*#[ \t]*include[ \t]*"[a-z_]+\// {
  header = $0
  gsub(/^[^"]*"|".*$/, "", header)
  target = header
  sub(/\/.*/, "", target)
  if (!(target in isRoom)) next  # a tool's own folder
  used[room, target] = 1
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
  comparePicture()
  for (file in edges) if (state[file] == "") walk(file, "")
  exit failed
}
