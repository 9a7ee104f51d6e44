"""Names that are paths, and files that are none or do not keep still: what the tool says, and what it leaves
alone."""

import os
import pathlib
import shutil
import socket
import threading

import documents as d
from running import Watch, expect

ROUNDS = 40
GOOD = d.package() + d.class_tag("A", 0) + ">\n" + d.simple("s", 0) + "</Class>\n" + d.END
IN_FORCE = "total  1 package"
NOT_A_NAME = "cannot be the name of a package"
NOT_THERE = f"there is no document {d.PACKAGE}.metadata"

# Names that would lead from the directory `path` to a document, were they used as they stand.
NAMES = ("../out/X", "..\\out\\X", "..\\X", "../X", "{out}/X", "sub/X", "sub\\X", "./P", "sub/../P", "../path/P",
         "../out/X.metadata", "..", ".", "/", "\\", "P/../../out/X")
COMMANDS = (("load",), ("show",), ("tree",), ("stats",), ("blocks",), ("graph", "--format", "dot"), ("why",),
            ("dump", "--json"), ("save", "--to", "{target}"), ("express", "--to", "{target}"))


class Layout:
    """A search path, and beside it what must be left alone."""

    def __init__(self, work):
        self.root = work / "places"
        shutil.rmtree(self.root, ignore_errors=True)
        self.path, self.out, self.target = (self.root / name for name in ("path", "out", "target"))
        self.sub = self.path / "sub"
        for directory in (self.path, self.out, self.target, self.sub):
            directory.mkdir(parents=True)
        for directory in (self.root, self.out, self.sub):
            for kind in ("metadata", "tuning", "express"):
                (directory / f"X.{kind}").write_text(GOOD.replace('"P"', '"X"', 1))
        self.document = self.path / f"{d.PACKAGE}.metadata"
        self.document.write_text(GOOD)

    def outside(self):
        """Nothing may look into these."""
        return [self.out, self.sub, *self.out.iterdir(), *self.sub.iterdir(), *self.root.glob("X.*")]

    def expect_nothing_made(self):
        expect(not list(self.target.iterdir()), f"a file in {self.target}")
        names = sorted(each.name for each in self.root.iterdir())
        expect(names == ["X.express", "X.metadata", "X.tuning", "out", "path", "target"], f"files: {names}")

    def arguments(self, command, name):
        words = [word.replace("{target}", str(self.target)) for word in command]
        return ["--path", str(self.path), *words, name]


def name_asked_for(tool, name):
    layout = Layout(tool.work)
    name = name.replace("{out}", str(layout.out))
    with Watch(layout.outside()) as watch:
        for command in COMMANDS:
            tool.run(layout.arguments(command, name), cwd=layout.path).expect_end(1, "error: ")
            watch.expect_untouched()
    layout.expect_nothing_made()


def name_in_document(tool, name, document):
    layout = Layout(tool.work)
    name = name.replace("{out}", str(layout.out))
    layout.document.write_text(document.replace("{name}", name))
    with Watch(layout.outside()) as watch:
        for command in (*COMMANDS, ("check",)):
            tool.run(layout.arguments(command, d.PACKAGE), cwd=layout.path).expect_end(1, NOT_A_NAME)
            watch.expect_untouched()
    layout.expect_nothing_made()


def dot_in_document(tool):
    """A name that leads nowhere else is taken, and no file gets it."""
    layout = Layout(tool.work)
    layout.document.write_text(GOOD.replace('"P"', '"."', 1))
    for command, status, line in ((("load",), 0, "Package name . differs from the name asked for: P"),
                                  (("save", "--to", "{target}"), 1, "error: "),
                                  (("express", "--to", "{target}"), 1, "error: ")):
        tool.run(layout.arguments(command, d.PACKAGE)).expect_end(status, line)
    layout.expect_nothing_made()


NAMING = (("as its own", GOOD.replace('"P"', '"{name}"', 1)),
          ("in UseNames", GOOD.replace('"P"', '"P" UseNames="{name}"', 1)),
          ("in UseScopes", GOOD.replace('"P"', '"P" UseScopes="{name}"', 1)))


# What bears the name of a document and is none.

def nothing(document):
    del document


def dangling_link(document):
    document.symlink_to("nowhere")


def link_to_itself(document):
    document.symlink_to(document.name)


def directory(document):
    document.mkdir()


def pipe(document):
    os.mkfifo(document)


def link_to_a_pipe(document):
    os.mkfifo(document.with_name("pipe"))
    document.symlink_to("pipe")


def endless_device(document):
    document.symlink_to("/dev/zero")


def terminal(document):
    document.symlink_to("/dev/tty")


def process_memory(document):
    document.symlink_to("/proc/self/mem")


def listening_socket(document):
    with socket.socket(socket.AF_UNIX) as listening:
        before = os.getcwd()
        os.chdir(document.parent)  # the path of a socket must be short
        try:
            listening.bind(document.name)
        finally:
            os.chdir(before)


NO_FILES = (nothing, dangling_link, link_to_itself, directory, pipe, link_to_a_pipe, endless_device, terminal,
            listening_socket)


def no_file(tool, make):
    """Asked for, it is not there; a document of that name further on the path is found."""
    layout = Layout(tool.work)
    good = layout.root / "good"
    good.mkdir()
    layout.document.rename(good / layout.document.name)
    make(layout.document)
    for command in ("load", "save", "dump", "express"):
        more = {"save": ["--to", str(layout.target)], "dump": ["--json"], "express": ["--to", str(layout.target)]}
        tool.run(["--path", str(layout.path), command, d.PACKAGE, *more.get(command, [])]).expect_end(1, NOT_THERE)
    expect(not list(layout.target.iterdir()), "a file was written")
    tool.run(["--path", str(layout.path), "check", d.PACKAGE]).expect_end(1, "1 error")
    tool.run(["--path", str(layout.path), "load"]).expect_end(1, "no package document on the path")
    tool.run(["--path", f"{layout.path}:{good}", "load", d.PACKAGE]).expect_end(0, IN_FORCE)
    tool.run(["--path", f"{layout.path}:{good}", "check"]).expect_end(0, "1 document: nothing to report")


def no_tuning(tool, make):
    """A package is loaded without it."""
    layout = Layout(tool.work)
    make(layout.document.with_suffix(".tuning"))
    tool.run(["--path", str(layout.path), "load", d.PACKAGE]).expect_end(0, IN_FORCE)
    tool.run(["--path", str(layout.path), "save", "--to", str(layout.target), d.PACKAGE]).expect_end(
        0, f"{d.PACKAGE}.metadata")
    expect([each.name for each in layout.target.iterdir()] == [layout.document.name], "more than the package")


def no_file_to_format(tool, make):
    """It stays as it is, and is told of."""
    layout = Layout(tool.work)
    layout.document.unlink()
    make(layout.document)
    tool.run(["fmt", str(layout.document)]).expect_end(1, f"{layout.document}: error: ")
    tool.run(["check", str(layout.document)]).expect_end(1, "1 error")


def links_are_followed(tool):
    layout = Layout(tool.work)
    layout.document.rename(layout.root / "elsewhere")
    layout.document.symlink_to("../elsewhere")
    for command in ("load", "check"):
        tool.run(["--path", str(layout.path), command, d.PACKAGE]).expect_end(0, "1 package" if command == "load"
                                                                             else "nothing to report")


def odd_paths(tool):
    """Items of the path that are no directories are passed over."""
    layout = Layout(tool.work)
    os.mkfifo(layout.root / "pipe")
    items = (layout.document, layout.root / "pipe", "/dev/zero", "/nowhere", "", "x" * 300, "x/" * 3000)
    path = ":".join(map(str, items))
    tool.run(["--path", path, "load", d.PACKAGE]).expect_end(1, NOT_THERE)
    tool.run(["--path", f"{path}:{layout.path}", "load", d.PACKAGE]).expect_end(0, IN_FORCE)


def sparse_giant(tool):
    """A file of an exbibyte's appearance is refused by its size."""
    layout = Layout(tool.work)
    for size in (1 << 32, 1 << 40):
        os.truncate(layout.document, size)
        tool.run(["--path", str(layout.path), "load", d.PACKAGE]).expect_end(1, "the document has 4 GiB or more")
    layout.document.write_text(GOOD)
    os.truncate(layout.document, 1 << 28)  # zeros behind a good document
    tool.run(["--path", str(layout.path), "load", d.PACKAGE]).expect_end(1, "a character that XML does not allow")


# Files that change while they are read.

LARGE = GOOD.replace(d.END, "".join(d.class_tag(f"C{number}", number + 1) + "/>\n" for number in range(3000)) +
                     d.END)
OTHER = LARGE.replace('Name="C1', 'Name="D1')


def replaced(document, other):
    other.write_text(OTHER)
    other.replace(document)
    other.write_text(LARGE)
    other.replace(document)


def rewritten(document, _):
    document.write_text(OTHER)
    document.write_text(LARGE)


def shrunk_and_grown(document, _):
    os.truncate(document, len(LARGE) // 3)
    os.truncate(document, len(LARGE) * 4)
    document.write_text(LARGE)


def removed(document, _):
    document.unlink(missing_ok=True)
    document.write_text(LARGE)


def made_a_pipe(document, other):
    os.mkfifo(other)
    other.replace(document)
    other.write_text(LARGE)
    other.replace(document)


CHANGES = (replaced, rewritten, shrunk_and_grown, removed, made_a_pipe)


def while_read(tool, change):
    """Whatever the moment, a run ends: with what it read, or with a line."""
    layout = Layout(tool.work)
    layout.document.write_text(LARGE)
    over = threading.Event()

    def go_on():
        while not over.is_set():
            change(layout.document, pathlib.Path(f"{layout.document}.other"))

    changing = threading.Thread(target=go_on)
    changing.start()
    try:
        for turn in range(ROUNDS):
            command = ("load", "check")[turn % 2]
            run = tool.run(["--path", str(layout.path), command, d.PACKAGE])
            expect(run.status in (0, 1), f"exit status {run.status}")
            if change is replaced:
                run.expect_end(0, "1 package" if command == "load" else "nothing to report")
            elif run.status == 1:
                run.expect_end(1, "error")
    finally:
        over.set()
        changing.join()


def said(function):
    return function.__name__.replace("_", " ")


def cases(tool):
    for name in NAMES:
        yield f"name: {name}, asked for", lambda name=name: name_asked_for(tool, name)
        for place, document in NAMING:
            if name != "." or place != "as its own":
                yield f"name: {name}, {place}", lambda name=name, document=document: name_in_document(
                    tool, name, document)
    yield "name: a dot, as its own", lambda: dot_in_document(tool)
    for make in NO_FILES:
        yield f"place: {said(make)} as a document", lambda make=make: no_file(tool, make)
        if make is not nothing:
            yield f"place: {said(make)} as a tuning document", lambda make=make: no_tuning(tool, make)
    for make in (*NO_FILES, process_memory):
        yield f"place: {said(make)} to be formatted", lambda make=make: no_file_to_format(tool, make)
    yield "place: links are followed", lambda: links_are_followed(tool)
    yield "place: a path of odd items", lambda: odd_paths(tool)
    yield "place: a file far too large", lambda: sparse_giant(tool)
    for change in CHANGES:
        yield f"place: a file that is {said(change)} while it is read", lambda change=change: while_read(tool, change)
