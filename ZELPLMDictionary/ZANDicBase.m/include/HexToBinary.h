/// UUIDs as text: 35 upper-case characters, the bytes in stored order, grouped 8-4-4-16.
#ifndef HEX_TO_BINARY_H
#define HEX_TO_BINARY_H

#include <string>
#include <string_view>

#include "ZELDbBinary.h"
#include "ZELString.h"
#include "ZanDicExport.h"

/// Writes the text of 16 bytes and a terminating zero: 36 bytes in all. Both lengths are ignored.
ZANDICBASE_API void UuidBinToHexa(unsigned char* bytes, int bytesLength, unsigned char* text, int textLength);

/// Writes the text of \p length bytes, with a dash before the fifth, seventh and ninth, and a
/// terminating zero; the empty text for a length below 1. \p text has room for 2 * length + 4 bytes;
/// \p textLength is ignored.
ZANDICBASE_API void UuidBinToHexa_V2(unsigned char* bytes, int length, unsigned char* text, int textLength);

/// Reads 16 bytes from digits of either case; a dash may stand before the first byte and after any.
/// Never refuses: a byte with an invalid or missing digit becomes 0xFF. Of \p text the first 64
/// characters count. A null argument ends the process.
ZANDICBASE_API void UuidHexToBinary(ZELString* text, ZELDbBinary* bytes);

/// The same for text that need not end with a zero. \returns the 16 bytes.
ZANDICBASE_API ZELDbBinary UuidFromText(std::string_view text);

/// \returns the text of a UUID as documents and dumps show it; "UNDEFINED" for one without bytes. Throws
/// std::bad_alloc when memory is short.
ZANDICBASE_API std::string UuidText(const ZELDbBinary& uuid);

#endif
