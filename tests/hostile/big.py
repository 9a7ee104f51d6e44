"""Documents that are far too large in one respect, and what the tool says to each.

Every shape has a size: how many there are of what it is about. All are asked for in full, `scripts/hostile`, or
at a percentage. What a run takes is compared at two small sizes, by the instructions that the processor has
executed: four times as much may take at most COST_LIMIT times as many. Times are compared in full only.
"""

import dataclasses
import typing

import documents as d
from running import Wrong, expect

COUNTED = 4000  # the larger of the sizes at which instructions are counted
COUNTED_BYTES = 1 << 22  # the same for shapes that are about the length of one text
COST_LIMIT = 6.0  # how many times as much four times as much may take: 4 when linear, 16 when squared
LEAST_COUNT = 500_000  # fewer instructions are not compared: runs differ by some of them
TIME_LIMIT = 8.0  # the same for times, which vary
LEAST_SECONDS = 0.5  # shorter times are not compared

MILLION = 1_000_000
CHUNK = 1 << 20


@dataclasses.dataclass
class Shape:
    """One document for each size. Expectations: exit status and a text, of each command that is run."""

    title: str
    size: int
    write: typing.Callable  # (text file, size)
    expected: dict  # command: (exit status, text that is written, with {n} for the size)
    counted: int = COUNTED


# What is written.

def repeat(file, text, count):
    step = max(1, CHUNK // max(1, len(text)))
    for begin in range(0, count, step):
        file.write(text * min(step, count - begin))


def each(file, texts):
    file.writelines(texts)


def one_class(attributes="", content=None):
    """A writer of a class with `attributes` and `content`, which write what depends on the size."""
    def write(file, size):
        file.write(d.package() + d.class_tag("A", 0))
        if callable(attributes):
            attributes(file, size)
        else:
            file.write(attributes)
        file.write(">\n")
        if content is not None:
            content(file, size)
        file.write("</Class>\n" + d.END)
    return write


def value(name, character="x"):
    """A writer of one attribute with a value as long as the size."""
    def write(file, size):
        file.write(f' {name}="')
        repeat(file, character, size)
        file.write('"')
    return write


def in_package(content, attributes=None):
    """A writer of a package; both arguments write what depends on the size."""
    def write(file, size):
        file.write(d.package()[:-2])
        if attributes is not None:
            attributes(file, size)
        file.write(">\n")
        if content is not None:
            content(file, size)
        file.write(d.END)
    return write


def nested(begin, end):
    def write(file, size):
        repeat(file, begin, size)
        repeat(file, end, size)
    return write


def refs(name, kind, before="", after=""):
    """A writer of an attribute that lists the UUIDs of a kind, as many as the size."""
    def write(file, size):
        file.write(f'{before} {name}="')
        each(file, (d.uuid(kind, number) + " " for number in range(size)))
        file.write(f'"{after}')
    return write


def listed(tag, kind, attributes=""):
    """A writer of as many empty elements as the size."""
    def write(file, size):
        each(file, (d.element(tag, f"N{number}", d.uuid(kind, number), attributes) + "/>\n"
                    for number in range(size)))
    return write


def both(*writers):
    def write(file, size):
        for writer in writers:
            if callable(writer):
                writer(file, size)
            else:
                file.write(writer)
    return write


def simples(names):
    """A writer of attributes with these names."""
    def write(file, size):
        each(file, (d.simple(name, number) for number, name in enumerate(names(size))))
    return write


def classes(names, attributes=lambda number: ""):
    """A writer of classes with these names."""
    def write(file, size):
        each(file, (d.class_tag(name, number, attributes(number)) + "/>\n"
                    for number, name in enumerate(names(size))))
    return write


def numbered(count):
    return (f"C{number}" for number in range(count))


def one_name(count):
    return ("Same" for _ in range(count))


def many_uuids(file, size):
    each(file, (d.element("Class", f"C{number}", uuid, 'Persistent="Yes"') + "/>\n"
                for number, uuid in enumerate(d.similar_uuids(size))))


def one_uuid(file, size):
    each(file, (d.class_tag(f"C{number}", 1) + "/>\n" for number in range(size)))


def names_used(names, attribute="UseNames"):
    def write(file, size):
        file.write(f' {attribute}="')
        each(file, (f"{name} " for name in names(size)))
        file.write('"')
    return write


def heir_of_the_one_before(number):
    return f'SuperRef="{d.uuid(1, number - 1)}"' if number > 0 else ""


def in_a_ring(file, size):
    each(file, (d.class_tag(f"C{number}", number, f'SuperRef="{d.uuid(1, (number - 1) % size)}"') + "/>\n"
                for number in range(size)))


def one_redefined(file, size):
    each(file, (d.class_tag(f"C{number}", number, heir_of_the_one_before(number)) + ">\n" +
                d.simple("a", number) + "</Class>\n" for number in range(size)))


def components(file, size):
    file.write(d.element("RBOClass", "B", d.uuid(5)) + "/>\n" +
               d.element("RBOMapping", "M", d.uuid(6), f'ApplyToRBOClassRef="{d.uuid(5)}"') + ">\n" +
               d.element("RBORoot", "R", d.uuid(7)) + ">\n")
    each(file, (d.element("RBOComponent", f"N{number}", d.uuid(8, number)) + ">\n" for number in range(size)))
    repeat(file, "</RBOComponent>\n", size)
    file.write("</RBORoot>\n</RBOMapping>\n")


def unknown_attributes(file, size):
    each(file, (f' a{number}="{number}"' for number in range(size)))


def around(begin, end, character="x"):
    """A writer of a text between two marks, inside the package."""
    def write(file, size):
        file.write(begin)
        repeat(file, character, size)
        file.write(end)
    return write


CATEGORY_LIST = refs("CategoryRefs", 3, after="/>\n")
A_SIMPLE = d.element("Simple", "s", d.uuid(9), 'Type="String" MaxLength="20"')
A_RELATIONSHIP = d.element("Relationship", "r", d.uuid(9), f'TargetRef="{d.uuid(1, 0)}"')
AN_INVERSE = d.element("Inverse", "i", d.uuid(10), f'TargetRef="{d.uuid(4)}" InverseOfRef="{d.uuid(9)}"')
ANOTHER_CLASS = d.element("Class", "Other", d.uuid(4), 'Persistent="Yes"') + ">\n"


def with_categories(member, before=""):
    return in_package(both(listed("Category", 3), classes(lambda _: ["C"]), ANOTHER_CLASS, before, member,
                           CATEGORY_LIST, "</Class>\n"))


# What the tool says.

def loads(text="total  1 package"):
    return (0, text)


CLEAN = (0, "1 document: nothing to report")
ONE_WARNING = (0, "1 document: 1 warning")
SOME_WARNINGS = (0, "1 document: ")  # of long names


def refused(text, count="1 error"):
    return {"load": (1, text), "check": (1, f"1 document: {count}")}


def accepted(check=CLEAN, **more):
    return {"load": loads(), "check": check, **more}


SHAPES = [
    # one text as long as it gets
    Shape("one value that is known", 1 << 30, one_class(value("Alias")), accepted(), COUNTED_BYTES),
    Shape("one value that is unknown", 1 << 30, one_class(value("Other")), accepted(ONE_WARNING),
          COUNTED_BYTES),
    Shape("one value of references", 1 << 28, one_class(value("Alias", "&lt;")),
          {"load": loads(), "check": CLEAN}, COUNTED_BYTES),
    Shape("one value that is a name", 1 << 30, one_class(value("SuperName")), accepted(ONE_WARNING), COUNTED_BYTES),
    Shape("one value that is a UUID", 1 << 30, one_class(value("ReferenceRef", "A")),
          refused("AAAA", "1 error"), COUNTED_BYTES),
    Shape("one value that is a number", 1 << 30,
          one_class(content=both(A_SIMPLE, value("Upper", "9"), "/>\n")), accepted(ONE_WARNING),
          COUNTED_BYTES),
    Shape("one comment", 1 << 30, in_package(around("<!--", "-->")), accepted(), COUNTED_BYTES),
    Shape("one text", 1 << 30, in_package(around("<Comment>", "</Comment>")), accepted(), COUNTED_BYTES),
    Shape("one tag name", 1 << 30, in_package(around("<", " Name='n'/>")),
          refused("attribute Uuid of xxx"), COUNTED_BYTES),
    Shape("one attribute name", 1 << 30, one_class(around(" ", "=''")), accepted(ONE_WARNING), COUNTED_BYTES),
    Shape("one name of a package that is used", 1 << 30, in_package(None, value("UseNames")),
          refused("xxx"), COUNTED_BYTES),
    Shape("nothing but blanks", 1 << 30, in_package(around("", "", " \n")), accepted(), COUNTED_BYTES),

    # attributes of one tag
    Shape("attributes that the tag knows, given again", 10 * MILLION,
          one_class(lambda file, size: repeat(file, ' Alias="x"', size)),
          accepted((0, "is given more than once"))),
    Shape("attributes that the tag does not know", 10 * MILLION, one_class(unknown_attributes),
          accepted((0, "1 document: {n} warnings"), save=(0, "P.metadata"))),
    Shape("one attribute that the tag does not know, given again", 10 * MILLION,
          one_class(lambda file, size: repeat(file, ' other="x"', size)),
          accepted((0, "is given more than once"))),

    # tags
    Shape("nested tags that are unknown", MILLION, in_package(nested("<a>", "</a>")),
          {**refused("attribute Name of a is missing", "2 errors"), "fmt": (0, "P.metadata")}),
    Shape("nested tags of classes", MILLION, in_package(nested("<Class>", "</Class>")),
          refused("attribute Name of Class is missing", "2 errors")),
    Shape("nested tags that are not closed", MILLION, in_package(nested("<a>", "")),
          {**refused("the end tag is not that of the open element"), "fmt": (1, "the end tag is not that")}),
    Shape("nested tags of components", MILLION, in_package(components),
          accepted(save=(0, "P.metadata"), dump=(0, "\"validityRule\": null"), fmt=(0, "P.metadata"))),
    Shape("tags that are unknown", MILLION,
          in_package(lambda file, size: repeat(file, "<a/>", size)),
          refused("attribute Name of a is missing", "{2n} errors")),
    Shape("classes of one name", MILLION, in_package(classes(one_name)),
          refused("Same", "{n-1} errors")),
    Shape("classes of one UUID", MILLION, in_package(one_uuid), refused("C1", "{n-1} errors")),
    Shape("attributes of one name", MILLION, one_class(content=simples(one_name)),
          refused("Same", "{n-1} errors")),
    Shape("packages in one document", MILLION,
          lambda file, size: both("<All>", in_package(None), lambda _, n: repeat(
              file, d.package(name="Q")[:-2] + "/>\n", n), "</All>")(file, size),
          {"load": loads()}),

    # references
    Shape("a list of super classes, each the heir of the one before", MILLION,
          in_package(classes(numbered, heir_of_the_one_before)), accepted(tree=(0, "C0"))),
    Shape("a ring of super classes", MILLION, in_package(in_a_ring), refused("it is the class itself or below it")),
    Shape("heirs that define the same attribute again", MILLION, in_package(one_redefined), accepted()),
    Shape("interfaces, each the heir of the one before", MILLION,
          in_package(lambda file, size: each(file, (
              d.element("Interface", f"I{number}", d.uuid(1, number), heir_of_the_one_before(number)) + "/>\n"
              for number in range(size)))), accepted()),
    Shape("inverses of one relationship", MILLION,
          in_package(both(classes(lambda _: ["C"]), ANOTHER_CLASS, A_RELATIONSHIP, "/>\n",
                          lambda file, size: each(file, (
                              d.element("Inverse", f"I{number}", d.uuid(2, number),
                                        f'TargetRef="{d.uuid(4)}" InverseOfRef="{d.uuid(9)}"') + "/>\n"
                              for number in range(size))), "</Class>\n")), accepted((0, "1 document"))),

    # lists of UUIDs: every attribute that has one
    Shape("a list in UniqueRefs", MILLION,
          one_class(content=both(simples(numbered),
                                 refs("UniqueRefs", 2, d.element("Unique", "u", d.uuid(9)), "/>\n"))),
          accepted(save=(0, "P.metadata"))),
    Shape("a list in UniqueRefs of what is not there", MILLION,
          one_class(content=refs("UniqueRefs", 3, d.element("Unique", "u", d.uuid(9)), "/>\n")),
          refused("u", "{n} errors")),
    Shape("a list in UniqueRefs of one attribute", MILLION,
          one_class(content=both(d.simple("s", 0), d.element("Unique", "u", d.uuid(9)),
                                 ' UniqueRefs="', lambda file, size: repeat(file, d.uuid(2, 0) + " ", size),
                                 '"/>\n')), refused("u")),
    Shape("a list in ScopeRefs of an extension", MILLION,
          in_package(both(classes(numbered, lambda _: 'Extensible="Yes"'),
                          refs("ScopeRefs", 1, d.element("Extension", "E", d.uuid(9), 'Persistent="Yes"'),
                               "/>\n"))), accepted(save=(0, "P.metadata"))),
    Shape("a list in ScopeRefs of a class", MILLION,
          in_package(both(classes(numbered),
                          refs("ScopeRefs", 1, d.element("Class", "E", d.uuid(9), 'Persistent="Yes"'),
                               "/>\n"))), accepted((0, "1 document"))),
    Shape("a list in ScopeRefs of a relationship", MILLION,
          in_package(both(classes(numbered), ANOTHER_CLASS, refs("ScopeRefs", 1, A_RELATIONSHIP, "/>\n"),
                          "</Class>\n")), accepted(save=(0, "P.metadata"))),
    Shape("a list in CategoryRefs of an attribute", MILLION, with_categories(A_SIMPLE),
          accepted(save=(0, "P.metadata"))),
    Shape("a list in CategoryRefs of a relationship", MILLION, with_categories(A_RELATIONSHIP), accepted()),
    Shape("a list in CategoryRefs of an inverse", MILLION,
          with_categories(AN_INVERSE, A_RELATIONSHIP + "/>\n"), accepted((0, "1 document"))),
    Shape("a list in CommandRefs of a package", MILLION, in_package(None, refs("CommandRefs", 3)),
          refused("CommandRefs", "{n} errors")),
    Shape("a list in CommandRefs of a class", MILLION, one_class(refs("CommandRefs", 3)),
          refused("CommandRefs", "{n} errors")),
    Shape("a list in InterfaceRefs", MILLION, one_class(refs("InterfaceRefs", 3)), accepted((0, "1 document"))),
    Shape("a list in UseNames", MILLION, in_package(None, names_used(numbered)), refused("C0", "{n} errors")),
    Shape("a list in UseScopes", MILLION, in_package(None, names_used(numbered, "UseScopes")),
          refused("C0", "{n} errors")),

    # what tables are keyed by
    Shape("attributes whose names collide", d.MOST_COLLIDING, one_class(content=simples(d.colliding_names)),
          accepted(SOME_WARNINGS)),
    Shape("classes whose names collide", d.MOST_COLLIDING, in_package(classes(d.colliding_names)),
          accepted(SOME_WARNINGS)),
    Shape("packages used whose names collide", d.MOST_COLLIDING, in_package(None, names_used(d.colliding_names)),
          refused("there is no document", "{n} errors")),
    Shape("attributes whose names are alike", MILLION, one_class(content=simples(d.similar_names)), accepted()),
    Shape("classes whose names are alike", MILLION, in_package(classes(d.similar_names)), accepted()),
    Shape("classes whose UUIDs are alike", MILLION, in_package(many_uuids), accepted()),
]


class Tuned(Shape):
    """A shape of a tuning document, beside the package that it is for."""


def tuned(title, names, expected):
    def write(file, size):
        one_class(content=simples(names))(file, size)

    def write_tuning(file, size):
        file.write(d.package() + d.element("Class", "A", d.uuid(1, 0)) + ">\n" +
                   d.element("AttributeBlock", "B", d.uuid(9)))
        refs("AttributeUuids", 2)(file, size)
        file.write("/>\n</Class>\n" + d.END)

    shape = Tuned(title, MILLION if names is numbered else d.MOST_COLLIDING, write, expected)
    shape.write_tuning = write_tuning
    return shape


SHAPES += [
    tuned("a list in AttributeUuids", numbered, accepted((0, "2 documents: nothing to report"),
                                                                blocks=(0, "B"), save=(0, "P.tuning"))),
    tuned("a list in AttributeUuids of names that collide", d.colliding_names,
          accepted((0, "2 documents: "), blocks=(0, "B"))),
]

ARGUMENTS = {
    "load": ["load", d.PACKAGE, "--no-times"],
    "check": ["check", d.PACKAGE],
    "save": ["save", d.PACKAGE, "--to", "saved"],
    "dump": ["dump", d.PACKAGE, "--json"],
    "tree": ["tree", d.PACKAGE],
    "blocks": ["blocks", d.PACKAGE],
    "fmt": ["fmt", f"{d.PACKAGE}.metadata"],
}


def arguments(command):
    return ["--path", ".", *ARGUMENTS[command]]


def write_documents(work, shape, size):
    for old in (*work.glob("*.metadata"), *work.glob("*.tuning"), *work.glob("saved/*")):
        old.unlink()
    (work / "saved").mkdir(exist_ok=True)
    with open(work / f"{d.PACKAGE}.metadata", "w", encoding="utf-8") as file:
        shape.write(file, size)
    if isinstance(shape, Tuned):
        with open(work / f"{d.PACKAGE}.tuning", "w", encoding="utf-8") as file:
            shape.write_tuning(file, size)


def in_size(text, size):
    return text.replace("{n}", str(size)).replace("{n-1}", str(size - 1)).replace("{2n}", str(2 * size))


def try_size(tool, shape, size):
    """Returns the runs of all commands, each as it should be."""
    runs = {}
    for command, (status, text) in shape.expected.items():
        write_documents(tool.work, shape, size)
        runs[command] = tool.run(arguments(command))
        try:
            runs[command].expect_end(status, in_size(text, size))
        except Wrong as fault:
            raise Wrong(f"{command}: {fault}") from fault
    return runs


def count(tool, shape, command, size):
    write_documents(tool.work, shape, size)
    return tool.count(arguments(command))


NOTHING = Shape("nothing", 0, in_package(None), {})
_counts_of_nothing = {}


def count_of_nothing(tool, command):
    """What a command takes for an empty package: the same for every shape."""
    if command not in _counts_of_nothing:
        _counts_of_nothing[command] = count(tool, NOTHING, command, 0)
    return _counts_of_nothing[command]


def try_cost(tool, shape):
    """Compares the instructions of two sizes, less those of an empty package."""
    for command in shape.expected:
        if command == "load" and "check" in shape.expected:
            continue  # a check does what a load does
        nothing = count_of_nothing(tool, command)
        less = count(tool, shape, command, shape.counted // 4) - nothing
        more = count(tool, shape, command, shape.counted) - nothing
        expect(more <= max(less, LEAST_COUNT) * COST_LIMIT,
               f"{command}: {shape.counted // 4} take {less} instructions, {shape.counted} take {more}")


def try_times(tool, shape):
    """The sizes in full: a quarter of them, then all. Returns what all took, in a line."""
    quarter = try_size(tool, shape, shape.size // 4)
    whole = try_size(tool, shape, shape.size)
    told = []
    for command, run in whole.items():
        told.append(f"{command} {run.seconds:.1f} s, {run.bytes / 1e6:.0f} MB")
        before = max(quarter[command].seconds, LEAST_SECONDS)
        expect(run.seconds <= before * TIME_LIMIT, f"{command}: {quarter[command].seconds:.1f} s for a quarter, "
               f"{run.seconds:.1f} s for all")
    return "; ".join(told)
