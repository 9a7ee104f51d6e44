#ifndef OXMI_DIC_ENUMERATOR_H
#define OXMI_DIC_ENUMERATOR_H

#include "OXMIDicElement.h"

/// One named value of an enumeration.
class OXMIDicEnumerator : public OXMIDicElement {
public:
    static constexpr ZELInterfaceId ClassId() { return IID_OXMIDicEnumerator; }

    /// \returns S_OK.
    virtual HRESULT GetValue(int* value) = 0;

    /// \returns S_OK.
    virtual HRESULT SetValue(int value) = 0;

protected:
    ~OXMIDicEnumerator() = default;
};

#endif
