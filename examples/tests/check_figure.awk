# Checks a mesh and a figure made for it, by their text alone:
#   awk -f check_figure.awk MESH.obj FIGURE.cr2
# Prints what is wrong and ends with 1, or prints the counts.

function wrong(text) {
  if (++faults <= 20) print FILENAME ":" FNR ": " text
}

function finishDeltas() {
  if (inDeltas && deltas != indexes) wrong(indexes " deltas announced, " deltas " written")
  inDeltas = 0
}

FNR == 1 { ++file }
{ sub(/\r$/, "") }

# The mesh.
file == 1 && $1 == "v" {
  ++vertices
  if (NF != 4) wrong("vertex: " $0)
  next
}
file == 1 && $1 == "vt" {
  ++texturePoints
  if (NF != 3 || $2 < 0 || $2 > 1 || $3 < 0 || $3 > 1) wrong("off the texture: " $0)
  next
}
file == 1 && $1 == "g" { group = $2; ++groups; isGroup[group] = 1; next }
file == 1 && $1 == "usemtl" { material = $2; isUsed[material] = 1; next }
file == 1 && $1 == "f" {
  ++faces
  if (group == "" || material == "") wrong("a face without a group or a material")
  if (NF != 5) wrong("not a quad: " $0)
  for (i = 2; i <= NF; ++i) {
    split($i, corner, "/")
    split($(i == NF ? 2 : i + 1), following, "/")
    if (corner[1] < 1 || corner[1] > vertices) wrong("no such vertex: " $0)
    if (corner[2] < 1 || corner[2] > texturePoints) wrong("no such texture point: " $0)
    if (!((group, corner[1]) in isIn)) { isIn[group, corner[1]] = 1; ++pointsOf[group] }
    # Neighbours that walk an edge the same way would face opposite ways.
    if ((corner[1], following[1]) in isWalked) wrong("an edge is walked twice: " $0)
    isWalked[corner[1], following[1]] = 1
  }
  next
}
file == 1 { wrong("unknown line: " $0); next }

# The figure: its blocks, in both sections.
$1 == "{" { ++depth }
$1 == "}" { if (--depth < 0) wrong("a brace too many"); finishDeltas() }
/^figureResFile :Runtime:Geometries:/ { ++section; next }
/^(actor|prop) / {
  actor = $2
  ++blocks
  if (section == 1) isStored[actor] = 1
  if (section == 2) isActor[actor] = 1
}
$1 == "geomHandlerGeom" && !($3 in isGroup) { wrong("no such group: " $3) }
/^figure$/ { isFigure = 1 }

# Channels; a channel line stands at two tabs.
/^\t\t[a-zA-Z]/ && section == 2 && !isFigure {
  ++channels
  isChannel[actor, $2] = 1
  if ($1 == "targetGeom") ++morphs
}
$1 == "indexes" { indexes = $2 }
$1 == "numbDeltas" {
  pointCount = $2
  name = actor
  sub(/:.*/, "", name)
  if ($2 != pointsOf[name]) wrong(actor " has " pointsOf[name] " points in the mesh, not " $2)
}
$1 == "deltas" { inDeltas = 1; deltas = 0; lastIndex = -1 }
$1 == "d" && inDeltas {
  ++deltas
  ++allDeltas
  if ($2 + 0 <= lastIndex || $2 + 0 >= pointCount) wrong("index: " $0)
  if ($0 !~ /^\t\t\t\td [0-9]+ -?[0-9]+\.[0-9]+ -?[0-9]+\.[0-9]+ -?[0-9]+\.[0-9]+$/) wrong("delta: " $0)
  lastIndex = $2 + 0
}

# ERC blocks: five lines behind the head of a channel or behind another block.
ercLine == 5 { if ($1 != "deltaAddDelta" || NF != 2) wrong("ERC ratio: " $0) }
ercLine == 4 { master[++ercBlocks] = ercActor SUBSEP $1 }
ercLine == 3 { ercActor = $1 }
ercLine == 2 && $0 != "\t\t\t\tFigure 1" { wrong("ERC figure: " $0) }
ercLine { ercLine = (ercLine + 1) % 6 }
$0 == "\t\t\tvalueOpDeltaAdd" {
  if (previous !~ /^\t\t\t(interpStyleLocked 0|deltaAddDelta .*)$/) wrong("an ERC block out of place")
  ercLine = 2
}
{ previous = $0 }

# Every actor that is mentioned exists.
$1 == "otherActor" || $1 == "parent" { mentioned[$2] = 1 }
isFigure && /^\t(root|addChild|weld|defaultPick) / { mentioned[$2] = 1 }
isFigure && /^\t\t\t/ { mentioned[$1] = 1 }
isFigure && /^\t\t(addLink|goal) / { mentioned[$2] = 1 }
isFigure && /^\tinkyChain / { ++chains }

/^\tmaterial / && isFigure {
  if (isPreset) wrong("a material behind the presets")
  isListed[$2] = 1
  ++materials
}
/^\tpresetMaterial / { isPreset = 1 }

END {
  if (depth != 0) wrong("braces do not balance: " depth)
  if (section != 2) wrong(section " geometry lines")
  if (!isPreset) wrong("no preset material")
  for (name in mentioned) if (name != "UNIVERSE" && !(name in isActor)) wrong("no such actor: " name)
  for (name in isStored) if (!(name in isActor)) wrong("not in the second section: " name)
  for (name in isActor) if (!(name in isStored)) wrong("not in the first section: " name)
  for (i in master) if (!(master[i] in isChannel)) wrong("no such master: " master[i])
  for (name in isUsed) if (!(name in isListed)) wrong("no such material: " name)
  if (!groups || !channels) wrong("not a mesh and a figure")
  if (faults) exit 1
  print vertices + 0 " vertices, " faces + 0 " faces, " groups " groups, " blocks " blocks, " \
        channels " channels, " morphs + 0 " morphs, " allDeltas + 0 " deltas, " \
        ercBlocks + 0 " ERC blocks, " chains + 0 " IK chains, " materials + 0 " materials"
}
