/// All attributes of a class, inherited ones included, and when they have to be computed anew.
#ifndef ZAN_DIC_ALL_ATTRIBUTES_H
#define ZAN_DIC_ALL_ATTRIBUTES_H

#include <cstdint>
#include <memory>
#include <vector>

#include "ZanDicAttribute.h"
#include "ZanHashList.h"

/// Two clocks over all class hierarchies of the process.
class ZanDicHierarchy {
public:
    /// The state of all hierarchies: an answer computed at a state is the right one as long as it stands.
    static std::uint64_t State() { return state; }
    /// To be said of whatever could change an answer: members, super classes, names.
    static void Changed() { ++state; }

    /// Grows when a class may have come to an answer: by computing it, or by moving below another class.
    static std::uint64_t Answers() { return answers; }
    static void AnswerMade() { ++answers; }

private:
    static std::uint64_t state;
    static std::uint64_t answers;
};

/// The computed answer of one class, unchangeable: what it redefines and adds to its super class's answer,
/// which it shares. So the answers of a hierarchy need memory for each class's own attributes only. Links:
/// an attribute that is gone is left out when the answer is listed.
class ZanDicAllAttributes {
public:
    using List = std::vector<ZanDicAttribute*>;  ///< null where an attribute is gone
    using Answer = std::shared_ptr<const ZanDicAllAttributes>;

    /// One pass from a class down to one below it. Cost: the attributes that are passed, and in a class with
    /// own attributes one look at each inherited one; on long ways a look at each own one instead.
    class Descent {
    public:
        /// \param super the answer to start from; null at a root. \param length how many classes follow.
        Descent(Answer super, std::size_t length);
        ~Descent();
        Descent(const Descent&) = delete;
        Descent& operator=(const Descent&) = delete;

        /// \returns the answer of the next class down, whose own attributes are \p own; notes in each that
        /// redefines an inherited one what it redefines.
        Answer Next(const ZanHashList& own);

    private:
        struct Names;
        using Redefinition = std::pair<std::uint32_t, ZanDicAttribute*>;  ///< index of the inherited one

        std::vector<Redefinition> FindRedefinitions(const ZanHashList& own);

        Answer _Answer;
        List _LISTED;  ///< the answer listed, once it was needed
        bool _IsListed = false;
        std::unique_ptr<Names> _Names;  ///< null on short ways
    };

    ZanDicAllAttributes() = default;
    ~ZanDicAllAttributes();
    ZanDicAllAttributes(const ZanDicAllAttributes&) = delete;
    ZanDicAllAttributes& operator=(const ZanDicAllAttributes&) = delete;

    /// \returns the attributes in order. Cost: their number, a small factor.
    List Listed() const;

    /// \returns what \p answer lists, without the attributes that are gone; empty for null.
    static List ListAlive(const Answer& answer);

private:
    struct Replacement {
        std::uint32_t index;  ///< in the base's list
        ZanDicLink<ZanDicAttribute> by;
    };

    mutable Answer _Base;  ///< the answer that this one changes; null when it stands alone
    std::vector<Replacement> _REPLACED;
    std::vector<ZanDicLink<ZanDicAttribute>> _ADDED;
    std::uint32_t _Size = 0;   ///< of the whole list
    std::uint32_t _Depth = 1;  ///< how many answers make up this one
};

#endif
