#ifndef ZELTESTCOMPONENTS_H
#define ZELTESTCOMPONENTS_H

#include <string>

#include "IUnknown.h"
#include "ZELBaseUnknown.h"
#include "ZELMetaClass.h"
#include "ZELTie.h"

// A small family of components for the tests of objects, metadata and adapters.

class ISurface : public IUnknown {
public:
    virtual HRESULT GetArea(int* area) = 0;
    static constexpr ZELInterfaceId ClassId() { return {1, 1}; }

protected:
    ~ISurface() = default;
};

class ISquare : public ISurface {
public:
    virtual HRESULT GetSide(int* side) = 0;
    static constexpr ZELInterfaceId ClassId() { return {1, 2}; }

protected:
    ~ISquare() = default;
};

/// Answered by no class.
class INothing : public IUnknown {
public:
    static constexpr ZELInterfaceId ClassId() { return {1, 3}; }

protected:
    ~INothing() = default;
};

/// What happened: "object;" where an object ends.
inline std::string componentEvents;

class Surface : public ZELBaseUnknown {
public:
    explicit Surface(int area) : _Area(area) {}
    ~Surface() override { componentEvents += "object;"; }

    HRESULT GetArea(int* area) {
        *area = _Area;
        return S_FALSE;
    }
    ZELMetaClass& MetaObject() const override;

private:
    int _Area;  ///< lies in the padding of the base
};

class Square : public Surface {
public:
    explicit Square(int side) : Surface(side * side), _Side(side) {}

    HRESULT GetSide(int* side) {
        *side = _Side;
        return S_OK;
    }
    ZELMetaClass& MetaObject() const override;

private:
    int _Side;
};

template <class Impl, class Base>
class SurfaceLayer : public Base {
public:
    HRESULT GetArea(int* area) override { return this->impl().GetArea(area); }
};

template <class Impl, class Base>
class SquareLayer : public Base {
public:
    HRESULT GetSide(int* side) override { return this->impl().GetSide(side); }
};

class SurfaceTie final : public SurfaceLayer<Surface, ZELTie<ISurface, Surface>> {};
class SquareTie final : public SquareLayer<Square, SurfaceLayer<Square, ZELTie<ISquare, Square>>> {};

inline constinit ZELMetaClass surfaceMeta("Surface");
inline constinit ZELMetaClass squareMeta("Square", &surfaceMeta);

inline const ZELTieRow kSurfaceRows[] = {ZELMakeTieRow<SurfaceTie>()};
inline const ZELTieRow kSquareRows[] = {ZELMakeTieRow<SquareTie>()};

inline ZELMetaClass& Surface::MetaObject() const { return surfaceMeta; }
inline ZELMetaClass& Square::MetaObject() const { return squareMeta; }

inline const bool kComponentsRegistered = [] {
    surfaceMeta.RegisterTies(kSurfaceRows);
    squareMeta.RegisterTies(kSquareRows);
    return true;
}();

/// Asks \p asked, an object or an interface, for \p Interface. \returns null when it has none.
template <class Interface, class Asked>
Interface* Query(Asked& asked) {
    void* out = nullptr;
    return Succeeded(asked.QueryInterface(Interface::ClassId(), &out)) ? static_cast<Interface*>(out)
                                                                       : nullptr;
}

#endif
