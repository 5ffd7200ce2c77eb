#!/bin/sh
# Tries wrong command lines and files that cannot be written: check_command_line.sh make_figure SCRATCH
set -eu
maker=$1
scratch=$2
rm -rf "$scratch"
mkdir -p "$scratch"
cd "$scratch"

# expect CODE TEXT ARGUMENT...: the exit code, and a text in the message.
expect() {
  wanted=$1
  text=$2
  shift 2
  code=0
  "$maker" "$@" >out 2>err || code=$?
  if [ "$code" -ne "$wanted" ] || ! grep -qF -e "$text" out err; then
    echo "make_figure $*: exit code $code, not $wanted, or no '$text' in:" >&2
    cat out err >&2
    exit 1
  fi
}

expect 0 'make_figure --sample FOLDER' --help
expect 2 'nothing to make'
expect 2 'nothing to make' --morphs 3
expect 2 "unknown option '--cr3'" --cr3 a.cr2
expect 2 "unknown option 'a.cr2'" a.cr2
expect 2 '--cr2 needs a value' --cr2
expect 2 '--cr2 needs a name that is not empty' --cr2 ''
expect 2 'only one of' --cr2 a.cr2 --obj a.obj
expect 2 "from 0 to 1000000, not 'many'" --cr2 a.cr2 --morphs many
expect 2 "not '3x'" --cr2 a.cr2 --morphs 3x
expect 2 "not '-1'" --cr2 a.cr2 --morphs -1
expect 2 "not '0'" --cr2 a.cr2 --parts 0
expect 2 "not '99999999999999999999'" --cr2 a.cr2 --size 99999999999999999999
expect 2 "crlf, lf or cr, not 'dos'" --cr2 a.cr2 --line-ends dos
expect 2 '--faces does not go with --cr2' --cr2 a.cr2 --faces 1000
expect 2 '--source does not go with --obj' --obj a.obj --source
expect 2 '--seed does not go with --sample' --sample folder --seed 2
expect 2 'exclude each other' --obj a.obj --faces 1000 --vertices 50
for name in a.cr2 a.obj folder; do
  if [ -e "$name" ]; then
    echo "a wrong command line made $name" >&2
    exit 1
  fi
done

expect 1 'cannot write' --cr2 nofolder/a.cr2
mkdir folder
expect 1 'cannot write' --cr2 folder
: >plain
expect 1 'cannot write' --sample plain
if [ -e /dev/full ]; then
  expect 1 'No space left' --cr2 /dev/full
fi

# A run that breaks off leaves the old file whole and nothing beside it.
echo old >a.cr2
code=0
(ulimit -f 100 && trap '' XFSZ && "$maker" --cr2 a.cr2 --size 5) 2>err || code=$?
if [ "$code" -ne 1 ] || [ "$(cat a.cr2)" != old ] || [ -e a.cr2.part ]; then
  echo "breaking off left this, exit code $code:" >&2
  ls -l >&2
  exit 1
fi

# A link stays a link.
ln -s a.cr2 link.cr2
expect 0 'made link.cr2' --cr2 link.cr2
[ -L link.cr2 ] && [ "$(wc -c <a.cr2)" -gt 1000 ]
rm -rf "$scratch"
