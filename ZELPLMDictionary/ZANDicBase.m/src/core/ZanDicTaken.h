/// References of which their owners have let go.
#ifndef ZAN_DIC_TAKEN_H
#define ZAN_DIC_TAKEN_H

#include "ZanHashList.h"

/// The objects of owning lists that were taken, list by list, in the order of taking; walked once, and
/// further lists may be taken meanwhile.
///
/// It lives off the memory that the lists had, so that taking down what is owned needs none: it works when
/// there is none left. Takes and drops no reference; what is not given back in time is lost.
class ZanDicTaken {
public:
    ZanDicTaken() noexcept = default;
    ZanDicTaken(const ZanDicTaken&) = delete;
    ZanDicTaken& operator=(const ZanDicTaken&) = delete;
    ~ZanDicTaken();

    /// Takes all objects of \p owned, a list that owns; it is empty after that. Constant time.
    void Take(ZanHashList& owned) noexcept;

    /// \returns the next object; null after the last, until more is taken.
    ZanDicObj* Next() noexcept;

    /// Begins anew with the first one.
    void Rewind() noexcept;

private:
    void Enter(ZanHashList::Store* store) noexcept;

    ZanHashList::Store* _First = nullptr;  ///< owned, and the others by it
    ZanHashList::Store* _Last = nullptr;
    ZanHashList::Store* _Current = nullptr;  ///< where the walk is
    int _Index = 0;                          ///< of its next entry
};

#endif
