/// Arguments of any call of the interfaces, drawn from a caller's input by their types.
///
/// An argument is made before the call, passed by Get and settled after it, when what was handed out goes to
/// the caller. Settle is told whether the call may have handed something out.
#ifndef CALL_ARGUMENTS_H
#define CALL_ARGUMENTS_H

#include <string>
#include <type_traits>

#include "Caller.h"
#include "FuzzSupport.h"
#include "OXMIDicAttributeBlock.h"

template <class T>
class Argument;

/// Numbers and words; a word may be out of range.
template <class T>
requires std::is_arithmetic_v<T> || std::is_enum_v<T>
class Argument<T> {
public:
    explicit Argument(Caller& caller) : _Value(static_cast<T>(caller.DrawNumber())) {}
    T Get() const { return _Value; }
    void Settle(Caller&, bool) {}

private:
    T _Value;
};

/// A place for a number or a word; null at times.
template <class T>
requires(std::is_arithmetic_v<T> || std::is_enum_v<T>) && (!std::is_const_v<T>)class Argument<T*> {
public:
    explicit Argument(Caller& caller) : _IsNull(caller.DrawsNull()) {}
    T* Get() { return _IsNull ? nullptr : &_Value; }
    void Settle(Caller&, bool) {}

private:
    bool _IsNull;
    T _Value{};
};

/// An interface that the caller holds; null at times, or when it holds none of that kind.
template <class T>
requires std::is_base_of_v<IUnknown, T>
class Argument<T*> {
public:
    explicit Argument(Caller& caller)
        : _Face(caller.DrawsNull() ? nullptr : static_cast<T*>(caller.Pick(T::ClassId()))) {}
    T* Get() const { return _Face; }
    void Settle(Caller&, bool) {
        if (_Face != nullptr) const_cast<std::remove_const_t<T>*>(_Face)->Release();
    }

private:
    T* _Face;
};

/// A place for an interface; null at times.
template <class T>
requires std::is_base_of_v<IUnknown, T>
class Argument<T**> {
public:
    explicit Argument(Caller& caller) : _IsNull(caller.DrawsNull()) {}
    T** Get() { return _IsNull ? nullptr : &_Face; }
    void Settle(Caller& caller, bool mayHandOut) {
        Require(mayHandOut || _Face == nullptr, "a call that fails hands nothing out");
        caller.Take(_Face);
    }

private:
    bool _IsNull;
    T* _Face = nullptr;
};

template <class T>
class ArgumentWithoutEnd {
public:
    void Settle(Caller&, bool) {}

protected:
    T _Own;
};

template <>
class Argument<const ZELString*> : public ArgumentWithoutEnd<ZELString> {
public:
    explicit Argument(Caller& caller) : _Text(caller.Text(_Own)) {}
    const ZELString* Get() const { return _Text; }

private:
    const ZELString* _Text;
};

template <>
class Argument<const ZELUnicodeString*> : public ArgumentWithoutEnd<ZELUnicodeString> {
public:
    explicit Argument(Caller& caller) : _Text(caller.Unicode(_Own)) {}
    const ZELUnicodeString* Get() const { return _Text; }

private:
    const ZELUnicodeString* _Text;
};

template <>
class Argument<const ZELUnicodeString&> : public Argument<const ZELUnicodeString*> {
public:
    using Argument<const ZELUnicodeString*>::Argument;
    const ZELUnicodeString& Get() const {
        const ZELUnicodeString* const text = Argument<const ZELUnicodeString*>::Get();
        return text != nullptr ? *text : _Own;
    }
};

template <>
class Argument<const ZELDbBinary*> : public ArgumentWithoutEnd<ZELDbBinary> {
public:
    explicit Argument(Caller& caller) : _Uuid(caller.Uuid(_Own)) {}
    const ZELDbBinary* Get() const { return _Uuid; }

private:
    const ZELDbBinary* _Uuid;
};

/// Directories; for Dump the caller's name.
template <>
class Argument<const char*> : public ArgumentWithoutEnd<std::string> {
public:
    explicit Argument(Caller& caller) : _Text(caller.Directory(_Own)) {}
    const char* Get() const { return _Text; }

private:
    const char* _Text;
};

/// The places that a caller keeps: one row each.
template <class T, T* (Caller::*DrawPlace)()>
class ArgumentPlace {
public:
    explicit ArgumentPlace(Caller& caller) : _Place((caller.*DrawPlace)()) {}
    T* Get() const { return _Place; }
    void Settle(Caller&, bool) {}

private:
    T* _Place;
};
template <class T, T& (Caller::*DrawPlace)()>
class ArgumentReference {
public:
    explicit ArgumentReference(Caller& caller) : _Place((caller.*DrawPlace)()) {}
    T& Get() const { return _Place; }
    void Settle(Caller&, bool) {}

private:
    T& _Place;
};

template <>
class Argument<ZELString*> : public ArgumentPlace<ZELString, &Caller::TextPlace> {
    using ArgumentPlace::ArgumentPlace;
};
template <>
class Argument<ZELUnicodeString*> : public ArgumentPlace<ZELUnicodeString, &Caller::UnicodePlace> {
    using ArgumentPlace::ArgumentPlace;
};
template <>
class Argument<ZELDbBinary*> : public ArgumentPlace<ZELDbBinary, &Caller::UuidPlace> {
    using ArgumentPlace::ArgumentPlace;
};
template <>
class Argument<ZELListPtrIUnknown*> : public ArgumentPlace<ZELListPtrIUnknown, &Caller::ListPlace> {
    using ArgumentPlace::ArgumentPlace;
};
template <>
class Argument<ZELListValZELString*> : public ArgumentPlace<ZELListValZELString, &Caller::TextListPlace> {
    using ArgumentPlace::ArgumentPlace;
};
template <>
class Argument<ZELUnicodeString&> : public ArgumentReference<ZELUnicodeString, &Caller::UnicodeReference> {
    using ArgumentReference::ArgumentReference;
};
template <>
class Argument<ZELListPtrIUnknown&> : public ArgumentReference<ZELListPtrIUnknown, &Caller::ListReference> {
    using ArgumentReference::ArgumentReference;
};
template <>
class Argument<ZELListValZELUnicodeString&>
    : public ArgumentReference<ZELListValZELUnicodeString, &Caller::UnicodeListReference> {
    using ArgumentReference::ArgumentReference;
};

/// A list of attribute blocks, the same one more than once perhaps. Never null, and nothing else in it:
/// either would be the end of the process, as OXMIDicPackage::ComputeAttributeBlocks says.
template <>
class Argument<const ZELListPtrIUnknown*> {
public:
    explicit Argument(Caller& caller) {
        for (std::size_t count = caller.Bytes().Below(6); count > 0; --count) {
            if (IUnknown* const block = caller.Pick(OXMIDicAttributeBlock::ClassId())) _Blocks.Append(block);
        }
    }
    const ZELListPtrIUnknown* Get() const { return &_Blocks; }
    void Settle(Caller&, bool) {
        for (IUnknown* const block : _Blocks) block->Release();
    }

private:
    ZELListPtrIUnknown _Blocks;
};

#endif
