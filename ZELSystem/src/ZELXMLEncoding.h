#ifndef ZELXMLENCODING_H
#define ZELXMLENCODING_H

#include <string_view>

#include "ZELXMLBlock.h"

/// How the bytes of a document stand for characters. All others than UTF-8 are turned into it before a
/// document is read.
enum class ZELXMLEncoding { Utf8, Utf16Little, Utf16Big, Latin1 };

/// The encoding of a document.
struct ZELXMLSource {
    ZELXMLEncoding encoding = ZELXMLEncoding::Utf8;
    std::size_t markLength = 0;   ///< bytes of the byte order mark of UTF-16; that of UTF-8 stays in the text
    bool mustBeDeclared = false;  ///< nothing but its declaration makes it a document
};

/// Tells the encoding by the byte order mark, by the first bytes or by the XML declaration. Whether the
/// declaration agrees with what is found, and is one at all, the tokenizer says.
ZELXMLSource ZELXMLFindSource(std::string_view bytes);

/// Whether a document of that encoding may declare the encoding \p name.
bool ZELXMLMayDeclare(ZELXMLEncoding encoding, std::string_view name);

/// Turns \p bytes, less than 4 GiB and without their mark, into UTF-8, appended to \p text.
/// \returns whether they are valid; if not, \p text ends before the first that is not.
bool ZELXMLToUtf8(ZELXMLEncoding encoding, std::string_view bytes, ZELXMLBlock<char>& text);

#endif
