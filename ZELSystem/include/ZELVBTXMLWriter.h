#ifndef ZELVBTXMLWRITER_H
#define ZELVBTXMLWRITER_H

#include <string>
#include <string_view>
#include <vector>

#include "ZELDurableFile.h"
#include "ZELExport.h"

/// Whether \p name may be the name of a tag or an attribute.
ZELSYSTEM_API bool ZELXMLIsName(std::string_view name);

/// Appends \p value to \p text as the writer below writes values: escaped, and so that a reader gives it
/// back. \returns how many characters had to be replaced.
ZELSYSTEM_API long ZELXMLEscape(std::string_view value, std::string& text);

/// Writes an XML document as text, straight into a file: one element a line, two blanks of indentation for
/// each level (the first kMostIndented of them), "/>" for an element without content, a newline at the end.
///
/// Values are escaped so that a reader gives them back as they are: quote, ampersand and less-than, and tab,
/// newline and carriage return as character references. What XML does not allow, control characters, broken
/// UTF-8 and the like, becomes the replacement character U+FFFD each.
/// An element's attributes come before its content. Failures show when the file is committed. One thread.
class ZELSYSTEM_API ZELVBTXMLWriter {
public:
    static constexpr int kMostIndented = 64;

    /// \param file open, kept by the caller; gets the bytes.
    explicit ZELVBTXMLWriter(ZELDurableFile& file) : _File(file) {}
    ZELVBTXMLWriter(const ZELVBTXMLWriter&) = delete;
    ZELVBTXMLWriter& operator=(const ZELVBTXMLWriter&) = delete;

    /// Writes a line of markup outside of every element as it is: declaration, document type, comment.
    void Markup(std::string_view line);

    /// Begins an element inside the present one.
    /// \param tag an XML name; a view that is valid until the element ends.
    void Begin(std::string_view tag);

    /// Adds an attribute to the element just begun. \param name an XML name.
    void Attribute(std::string_view name, std::string_view value);
    /// The same for a value that needs no escape.
    void PlainAttribute(std::string_view name, std::string_view value);

    /// The same for markup that was put together before: the first \p size bytes of \p block.
    template <std::size_t capacity>
    void Ready(const char (&block)[capacity], std::size_t size) {
        _File.AppendBlock(block, size);
    }
    /// Ends an attribute that such markup has begun, up to the quote: adds its value, escaped.
    void EndValue(std::string_view value) {
        Escaped(value);
        _File.Append('"');
    }

    /// Writes text as the whole content of the element just begun, and ends it.
    void EndWithText(std::string_view text);

    /// Ends the present element.
    void End();

    /// \returns how many characters had to be replaced so far.
    long Replaced() const noexcept { return _Replaced; }

private:
    void NewLine(std::size_t depth);
    void Escaped(std::string_view text);

    ZELDurableFile& _File;
    std::vector<std::string_view> _OPEN;  ///< tags of the elements begun and not ended
    bool _TagIsOpen = false;              ///< the last tag still takes attributes
    long _Replaced = 0;
};

#endif
