"""Small documents that are not what they seem, and what the tool says to each."""

import documents as d
from running import Watch, expect

SECRET = "secret"  # a file beside the directory of the documents, which nothing may open


def text(alias):
    """A document with this value in it."""
    return d.package() + d.class_tag("A", 0, f'Alias="{alias}"') + "/>\n" + d.END


def bytes_in(value):
    """The same with a value that is no text."""
    return text("@@").encode().replace(b"@@", value)


def subset(declarations, alias="x"):
    """A document with declarations of its own."""
    return f"<!DOCTYPE Package [{declarations}]>" + text(alias)


LAUGHS = '<!ENTITY a0 "ha">' + "".join(
    f'<!ENTITY a{level} "{f"&a{level - 1};" * 10}">' for level in range(1, 30))
XML = '<?xml version="1.0" encoding="{}"?>'
PACKAGE = d.package()
EMPTY_PACKAGE = PACKAGE.replace(">\n", "/>")

UNDEFINED = "which is not one of the five predefined ones"
NO_CHARACTER = "a character that XML does not allow"
NO_REFERENCE = "a reference to a character that XML does not allow"
NOT_UTF8 = "the text is not valid UTF-8"
NOT_UTF16 = "the text is not valid UTF-16"
ANOTHER_ENCODING = "is not that of the text"
NO_ELEMENT = "there is no element"
SECOND_DOCTYPE = "a document type declaration is allowed only once, before the root element"
BAD_DOCTYPE = "the document type declaration is malformed"

# Title, document, and why it is refused; None where it loads without a word, a text behind "+" where it loads
# with that.
DOCUMENTS = (
    ("entities in entities, a billion texts", subset(LAUGHS, "&a29;"), UNDEFINED),
    ("a long entity given often", subset(f'<!ENTITY a "{"x" * 10000}">', "&a;" * 10000), UNDEFINED),
    ("an entity that holds itself", subset('<!ENTITY a "&b;"><!ENTITY b "&a;">', "&a;"), UNDEFINED),
    ("entities that nobody asks for", subset(LAUGHS), None),
    ("an entity that declares one", subset("<!ENTITY % p \"<!ENTITY a 'x'>\"> %p;", "&a;"), UNDEFINED),
    ("an entity in a file", subset('<!ENTITY a SYSTEM "{secret}">', "&a;"), UNDEFINED),
    ("an entity at a file's address", subset('<!ENTITY a SYSTEM "file://{secret}">', "&a;"), UNDEFINED),
    ("an entity in a file, in a text", subset('<!ENTITY a SYSTEM "{secret}">').replace(
        "<Class", "<Comment>&a;</Comment><Class"), UNDEFINED),
    ("declarations in a file", '<!DOCTYPE Package SYSTEM "{secret}">' + text("x"), None),
    ("public declarations in a file", '<!DOCTYPE Package PUBLIC "-//a" "{secret}">' + text("x"), None),
    ("more declarations in a file", subset('<!ENTITY % p SYSTEM "{secret}"> %p;'), None),
    ("a style sheet in a file", '<?xml-stylesheet href="{secret}"?>' + text("x"), None),
    ("a file to be included", PACKAGE + '<xi:include xmlns:xi="http://www.w3.org/2001/XInclude" '
     'href="{secret}"/>' + d.END, "attribute Name of xi:include is missing"),
    ("a schema in a file", text("x").replace('Name="P"', 'Name="P" xsi:schemaLocation="a {secret}"', 1),
     "+has no attribute xsi:schemaLocation"),
    ("a declared value of an attribute", subset('<!ATTLIST Class Abstract CDATA "planted">'), None),
    ("a notation", subset('<!NOTATION n SYSTEM "{secret}"><!ENTITY a SYSTEM "{secret}" NDATA n>', "&a;"),
     UNDEFINED),
    ("two document types", "<!DOCTYPE Package>" * 2 + text("x"), SECOND_DOCTYPE),
    ("a document type at the end", text("x") + "<!DOCTYPE Package>", SECOND_DOCTYPE),
    ("a document type that does not end", "<!DOCTYPE Package [<!ENTITY a 'x'>" + text("x"), BAD_DOCTYPE),
    ("another document type", "<!DOCTYPE Other>" + text("x"), None),
    ("ends of the document type that are none", subset('<!ENTITY a "]>"><!-- ]> --><?p ]>?>'), None),
    ("a conditional section", subset("<![INCLUDE[<!ENTITY a 'x'>]]>"), BAD_DOCTYPE),

    ("a zero", text("a\0b"), NO_CHARACTER),
    ("a zero in a name", text("x").replace("<Class", "<Cl\0ss"), NO_CHARACTER),
    ("a zero at the end", text("x") + "\0", NO_CHARACTER),
    ("a reference to zero", text("&#0;"), NO_REFERENCE),
    ("a reference to too high a character", text("&#x110000;"), NO_REFERENCE),
    ("a reference that overflows to a letter", text("&#x100000041;"), NO_REFERENCE),
    ("a reference of a thousand digits", text(f"&#{'9' * 1000};"), NO_REFERENCE),
    ("a reference to a half character", text("&#xD800;"), NO_REFERENCE),
    ("a control character", text("\x01"), NO_CHARACTER),
    ("a character that is none", text("\ufffe"), NO_CHARACTER),
    ("a letter in too many bytes", bytes_in(b"\xc1\x81"), NOT_UTF8),
    ("a slash in too many bytes", bytes_in(b"\xe0\x80\xaf"), NOT_UTF8),
    ("a zero in too many bytes", bytes_in(b"\xc0\x80"), NOT_UTF8),
    ("half a character in UTF-8", bytes_in(b"\xed\xa0\x80"), NOT_UTF8),
    ("a cut character", bytes_in(b"\xe2\x82"), NOT_UTF8),
    ("a character of five bytes", bytes_in(b"\xf8\x88\x80\x80\x80"), NOT_UTF8),
    ("too high a character in UTF-8", bytes_in(b"\xf4\x90\x80\x80"), NOT_UTF8),
    ("a byte that continues nothing", bytes_in(b"\x80"), NOT_UTF8),
    ("a cut character at the end", text("x").encode() + b"\xe2", NOT_UTF8),

    ("UTF-16 with a mark", text("\u00e9").encode("utf-16"), None),
    ("UTF-16 with a mark, high byte first", b"\xfe\xff" + text("\u00e9").encode("utf-16-be"), None),
    ("UTF-16 that declares itself", (XML.format("UTF-16") + text("x")).encode("utf-16-le"), None),
    ("UTF-16 without a mark", text("\u00e9").encode("utf-16-le"), "without a mark or a declaration"),
    ("UTF-16 without a mark, high byte first", text("\u00e9").encode("utf-16-be"),
     "without a mark or a declaration"),
    ("UTF-16 that ends in half a unit", text("x").encode("utf-16") + b"x", NOT_UTF16),
    ("UTF-16 with half a character", text("@").encode("utf-16").replace(b"@\0", b"\0\xd8"), NOT_UTF16),
    ("UTF-16 that claims to be UTF-8", (XML.format("UTF-8") + text("x")).encode("utf-16"), ANOTHER_ENCODING),
    ("UTF-8 that claims to be UTF-16", XML.format("UTF-16") + text("x"), ANOTHER_ENCODING),
    ("UTF-32", text("x").encode("utf-32"), "the text is UTF-32"),
    ("UTF-7", XML.format("UTF-7") + text("+ADw-"), "is not supported"),
    ("EBCDIC", ("<?xml version='1.0'?>" + text("x")).encode("cp037"), "text outside the root element"),
    ("nothing", "", NO_ELEMENT),
    ("a mark and nothing", b"\xef\xbb\xbf", NO_ELEMENT),
    ("a mark of UTF-16 and nothing", b"\xff\xfe", NO_ELEMENT),
    ("half a mark", b"\xff", NOT_UTF8),

    ("two packages", EMPTY_PACKAGE * 2, "a second root element"),
    ("a package in itself", PACKAGE + EMPTY_PACKAGE + d.END, "+tag Package"),
    ("two names", text("x").replace('Name="P"', 'Name="P" Name="Q"', 1), "+the first one counts"),
    ("two UUIDs", text("x").replace("Uuid=", f'Uuid="{d.uuid(0)}" Uuid=', 1), "+the first one counts"),
    ("two super classes", text("x").replace("Alias=", f'SuperRef="{d.uuid(1)}" SuperRef="{d.uuid(2)}" Alias='),
     "it is the class itself or below it"),
    ("a UUID that is none", text("x").replace(d.uuid(1), "not one"), "+UUID"),
    ("a name that is empty", text("x").replace('"A"', '""'), "Name"),
    ("a tag that does not end", PACKAGE[:-2], "the tag is not closed"),
    ("a package that does not end", PACKAGE, "is not closed"),
    ("a value that does not end", PACKAGE[:-2] + ' Alias="', "is not closed by its quote"),
    ("a comment that does not end", PACKAGE + "<!-- ", "a comment is not closed"),
    ("a CDATA section that does not end", PACKAGE + "<![CDATA[", "a CDATA section is not closed"),
    ("an instruction that does not end", PACKAGE + "<?a ", "a processing instruction is not closed"),
    ("tags that cross", PACKAGE + "<Class></Package></Class>", "the end tag is not that"),
)


def _try(tool, document, reason, source):
    outside = tool.work / SECRET
    outside.write_text("Nobody is to read this.\n")
    if isinstance(document, str):
        document = document.replace("{secret}", str(outside)).encode()
    (source / f"{d.PACKAGE}.metadata").write_bytes(document)
    is_refused = reason is not None and not reason.startswith("+")
    said = (reason or "").lstrip("+")
    with Watch([outside]) as watch:
        for command, text_said, text_good in (("load", said if is_refused else "", "total  1 package"),
                                              ("check", said, "nothing to report")):
            run = tool.run(["--path", str(source), command, d.PACKAGE])
            run.expect_end(1 if is_refused else 0, text_said or text_good)
            if is_refused or (command == "check" and said):
                expect(f"{d.PACKAGE}.metadata:" in run.out + run.err, f"no place: {run.out}{run.err}")
        watch.expect_untouched()


def cases(tool):
    source = tool.work / "odd"
    source.mkdir()
    for title, document, reason in DOCUMENTS:
        def run(document=document, reason=reason):
            _try(tool, document, reason, source)
        yield f"odd: {title}", run
