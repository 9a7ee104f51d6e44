#ifndef CALL_TABLE_H
#define CALL_TABLE_H

#include <span>
#include <string_view>

#include "Caller.h"

/// One operation of one interface.
struct CallRow {
    /// The compiler's text of the function that makes the call: it has "&OXMIDicX::Operation" in it.
    std::string_view text;
    ZELInterfaceId interface;
    /// Makes the call through \p face, an interface of that identifier; what it hands out goes to the caller.
    void (*call)(Caller& caller, IUnknown& face);

    /// \returns "OXMIDicX::Operation".
    std::string_view Name() const;
};

/// Every operation of every interface in OXMIDicInterfaces/include, once.
std::span<const CallRow> CallRows();

#endif
