#ifndef ZAN_DIC_REF_H
#define ZAN_DIC_REF_H

#include <utility>

/// Owns one reference of a counted object or interface and gives it back.
template <class T>
class ZanDicRef {
public:
    ZanDicRef() noexcept = default;
    /// Takes over the reference that \p counted carries.
    explicit ZanDicRef(T* counted) noexcept : _Counted(counted) {}
    ZanDicRef(ZanDicRef&& other) noexcept : _Counted(std::exchange(other._Counted, nullptr)) {}
    ZanDicRef& operator=(ZanDicRef&& other) noexcept {
        if (this != &other) Reset(std::exchange(other._Counted, nullptr));
        return *this;
    }
    ZanDicRef(const ZanDicRef&) = delete;
    ZanDicRef& operator=(const ZanDicRef&) = delete;
    ~ZanDicRef() { Reset(); }

    /// A second reference to \p counted.
    static ZanDicRef Share(T* counted) {
        if (counted != nullptr) counted->AddRef();
        return ZanDicRef(counted);
    }

    T* Get() const noexcept { return _Counted; }
    T* operator->() const noexcept { return _Counted; }
    T& operator*() const noexcept { return *_Counted; }
    explicit operator bool() const noexcept { return _Counted != nullptr; }

    /// For out arguments: gives back what is held and takes what the call fills in.
    T** Out() {
        Reset();
        return &_Counted;
    }
    void** OutVoid() { return reinterpret_cast<void**>(Out()); }

    /// Leaves the reference to the caller.
    T* Detach() noexcept { return std::exchange(_Counted, nullptr); }

    void Reset(T* counted = nullptr) {
        if (T* before = std::exchange(_Counted, counted); before != nullptr) before->Release();
    }

private:
    T* _Counted = nullptr;
};

#endif
