"""Parts of documents."""

PACKAGE = "P"


def uuid(kind, number=0):
    return f"FA{kind:06X}-0000-0000-{number:016X}"


def package(attributes="", name=PACKAGE):
    """The start tag of a package."""
    return f'<Package Name="{name}" Uuid="{uuid(0)}"{attributes}>\n'


def element(tag, name, identity, attributes=""):
    """A start tag without its end."""
    return f'<{tag} Name="{name}" Uuid="{identity}" {attributes}'


def class_tag(name, number, attributes=""):
    return element("Class", name, uuid(1, number), f'Persistent="Yes" {attributes}')


def simple(name, number, attributes='Type="String" MaxLength="20"'):
    return element("Simple", name, uuid(2, number), attributes) + "/>\n"


END = "</Package>\n"


# Names that collide in hash tables of standard libraries which know no seed, whatever they hold besides: two
# words of eight bytes, which differ by one bit in the middle of the function that several of them use. Given
# twice, either word leaves the same state behind.
MOST_COLLIDING = 1 << 17
WORDS = ("dM%k\U000519f6", "dM\u210cwOE")


def colliding_names(count):
    """Yields that many names, all of the same length in bytes, with one such hash."""
    pairs = [word * 2 for word in WORDS]
    bits = MOST_COLLIDING.bit_length() - 1
    for number in range(count):
        yield "".join(pairs[number >> bit & 1] for bit in range(bits))


def similar_names(count):
    """Yields that many names of one length which differ in single bits only."""
    for number in range(count):
        yield f"same{number:060b}"


def similar_uuids(count):
    """Yields that many UUIDs that are nearly all zeros: half of them differ at one end only, half at the
    other."""
    for number in range(2, count + 2):
        if number % 2 == 0:
            yield f"{number // 2:08X}-0000-0000-0000000000000000"
        else:
            yield f"00000000-0000-0000-{number // 2 << 40:016X}"
