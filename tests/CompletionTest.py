#!/usr/bin/env python3
"""Compares the completion of bash and zsh and the manual page with what the tool's help tells.

    CompletionTest.py TOOL SAMPLES
"""

import re
import subprocess
import sys
import tempfile

TOOL, SAMPLES = sys.argv[1:3]
FAULTS = []


def expect(is_so, text):
    if not is_so:
        FAULTS.append(text)
        print(text)


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def help_on(*topic):
    return output_of(TOOL, "help", *topic)


def options_in(text):
    return set(re.findall(r"^  (?:-h, )?(--[a-z-]+)", text, re.MULTILINE))


def commands():
    return re.findall(r"^[A-Z ][a-z ]{6} ([a-z]{1,11}) ", help_on(), re.MULTILINE)


COMMON = options_in(help_on("options"))
OPTIONS = {name: options_in(help_on(name)) | COMMON for name in commands()}


def script(word):
    file = tempfile.NamedTemporaryFile("w", suffix="_zandic", encoding="utf-8")
    file.write(output_of(TOOL, "completion", word))
    file.flush()
    return file


# bash: ask its function as the shell does.

BASH = script("bash")


def bash_offers(*words):
    program = ('source "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _zandic; '
               'printf "%s\\n" "${COMPREPLY[@]}"')
    return set(output_of("bash", "--norc", "-c", program, "bash", BASH.name, "zandic", *words).split())


expect(bash_offers("") == set(OPTIONS), f"bash offers {bash_offers('')} as commands")
for name, options in OPTIONS.items():
    offered = bash_offers(name, "--")
    expect(offered == options, f"bash, {name}: {sorted(offered ^ options)} only in the help or only offered")
expect(bash_offers("--path", SAMPLES, "show", "BomP") == {"BomPeople"}, "bash offers no packages")
expect(bash_offers("--path", "=", SAMPLES, "show", "--in", "BomP") == {"BomPeople"},
       "bash offers no packages for --in")
expect(bash_offers("--trace-level", "tree", "sh") == {"show"}, "bash takes a value for the command")
expect("show" in bash_offers("help", ""), "bash offers no commands for help")
expect(bash_offers("completion", "") == {"bash", "zsh", "man"}, "bash does not offer the shells")
expect(SAMPLES in bash_offers("save", "--to", SAMPLES[:-1]), "bash offers no directories")

# zsh: run its function with the functions of the shell replaced by such as print what they are given.

ZSH = script("zsh")


def zsh_offers(command):
    program = """
        _arguments() { if [[ $1 == -C ]] { state=operand; line=($COMMAND) } else { print -rl -- "$@" } }
        COMMAND=$2; source $1"""
    if command is None:
        program = """
            _arguments() { state=command }
            _describe() { print -rl -- ${(P)2} }
            source $1"""
    return output_of("zsh", "-f", "-c", program, "zsh", ZSH.name, command or "")


expect(set(re.findall(r"^([a-z]+):", zsh_offers(None), re.MULTILINE)) == set(OPTIONS),
       "zsh does not offer the commands")
for name, options in OPTIONS.items():
    specs = zsh_offers(name)
    offered = set(re.findall(r"^(?:\*|\([^)]*\))?(--[a-z-]+)\[", specs, re.MULTILINE))
    expect(offered == options, f"zsh, {name}: {sorted(offered ^ options)} only in the help or only offered")
expect("_zandic_packages" in zsh_offers("show"), "zsh offers no packages")

# The manual page.

PAGE = script("man")
WARNINGS = subprocess.run(["groff", "-man", "-ww", "-z", PAGE.name], check=True, capture_output=True, text=True)
expect(WARNINGS.stderr == "", f"groff warns: {WARNINGS.stderr}")
TEXT = output_of(TOOL, "completion", "man").replace("\\-", "-")
GENERAL = set(re.findall(r"\\fB(--[a-z-]+)\\fR", TEXT[TEXT.index(".SH OPTIONS"):TEXT.index(".SH COMMANDS")]))
expect(GENERAL == COMMON, f"manual: {sorted(GENERAL ^ COMMON)} only there or only in the help")
SECTIONS = dict(re.findall(r"^\.SS ([a-z]+)\n(.*?)(?=^\.S)", TEXT, re.MULTILINE | re.DOTALL))
expect(set(SECTIONS) == set(OPTIONS), f"manual: {sorted(set(SECTIONS) ^ set(OPTIONS))} as commands")
for name, section in SECTIONS.items():
    told = set(re.findall(r"^\\fB(--[a-z-]+)\\fR", section, re.MULTILINE)) | COMMON
    expect(told == OPTIONS[name], f"manual, {name}: {sorted(told ^ OPTIONS[name])} only there or only in the help")

expect(len(OPTIONS) >= 10, "the help lists no commands")
sys.exit(1 if FAULTS else 0)
