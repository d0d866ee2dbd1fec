#!/bin/sh
# Whether what restaurants run is hardened, told by the built files themselves.
#   hardening.sh BUILD_TYPE COMPILE_COMMANDS PROGRAM
# Exit status 77: nothing to check, because this is no release build.
set -eu

build_type=$1 compile_commands=$2 program=$3
if [ "$build_type" != Release ]; then
    echo "a $build_type build is not hardened"
    exit 77
fi

missing=0
expect() { # WHAT READELF_OPTION PATTERN
    if ! readelf -W "$2" "$program" | grep -Eq -- "$3"; then
        echo "$program: no $1"
        missing=1
    fi
}

expect "position-independent program" -h 'Type: +DYN \(Position-Independent Executable'
expect "stack protector" --dyn-syms '__stack_chk_fail'
expect "relocations made read-only" -l 'GNU_RELRO'
expect "binding at start" -d 'BIND_NOW|FLAGS_1.* NOW'
expect "stack without execution" -l 'GNU_STACK.* RW '

# Fortified calls leave a trace in a program only where the compiler could not prove them safe, so this one is
# told by the commands.
commands=$(grep -c '"command"' "$compile_commands")
fortified=$(grep -c '"command".*-D_FORTIFY_SOURCE=2' "$compile_commands")
if [ "$commands" -eq 0 ] || [ "$commands" -ne "$fortified" ]; then
    echo "$fortified of $commands files are compiled with fortified calls"
    missing=1
fi
exit $missing
