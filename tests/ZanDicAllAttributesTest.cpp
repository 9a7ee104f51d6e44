// The list of all attributes against a plain model of it: one that computes anew up to the root every time.
#include "ZanDicAllAttributes.h"

#include <rapidcheck.h>

#include <algorithm>
#include <map>

#include "ModelFixture.h"

namespace {

constexpr int kClasses = 14;
constexpr int kNames = 5;

/// What the classes hold and answer, without any saving of work.
class PlainModel {
public:
    struct Attribute {
        int number;
        int name;
    };

    bool Create(int owner, int name, int number) {
        if (Find(owner, name) != nullptr) return false;
        _OWN[owner].push_back({number, name});
        for (int below = 0; below < kClasses; ++below) {
            if (IsBelow(below, owner)) _ANSWER[below].clear();
        }
        return true;
    }

    bool Remove(int owner, int name) {
        return std::erase_if(_OWN[owner], [name](const Attribute& own) { return own.name == name; }) != 0;
    }

    bool SetSuper(int lower, int upper) {
        if (IsBelow(upper, lower)) return false;
        _Super[lower] = upper;
        _ANSWER[lower].clear();
        return true;
    }

    std::vector<int> All(int owner) {
        if (_ANSWER[owner].empty() && !_Super.contains(owner)) return Numbers(_OWN[owner]);
        if (_ANSWER[owner].empty()) Compute(owner);
        return Numbers(_ANSWER[owner]);
    }

    void Compute(int owner) {
        std::vector<Attribute> answer;
        if (_Super.contains(owner)) {
            Compute(_Super[owner]);
            for (const Attribute& inherited : _ANSWER[_Super[owner]]) {
                const Attribute* own = Find(owner, inherited.name);
                if (own != nullptr) _Specialized[own->number] = inherited.number;
                answer.push_back(own != nullptr ? *own : inherited);
            }
            for (const Attribute& own : _OWN[owner]) {
                if (!_Specialized.contains(own.number)) answer.push_back(own);
            }
        } else {
            answer = _OWN[owner];
        }
        _ANSWER[owner] = answer;
    }

private:
    const Attribute* Find(int owner, int name) {
        for (const Attribute& own : _OWN[owner]) {
            if (own.name == name) return &own;
        }
        return nullptr;
    }

    bool IsBelow(int lower, int upper) const {
        while (lower != upper && _Super.contains(lower)) lower = _Super.at(lower);
        return lower == upper;
    }

    static std::vector<int> Numbers(const std::vector<Attribute>& attributes) {
        std::vector<int> numbers;
        for (const Attribute& attribute : attributes) numbers.push_back(attribute.number);
        return numbers;
    }

    std::map<int, int> _Super;
    std::map<int, int> _Specialized;
    std::map<int, std::vector<Attribute>> _OWN;
    std::map<int, std::vector<Attribute>> _ANSWER;
};

class ZanDicAllAttributesTest : public ModelFixture {
protected:
    /// \returns the numbers that ended the UUIDs of what the class lists.
    static std::vector<int> AllNumbers(OXMIDicClass& owner) {
        HeldList list;
        RC_ASSERT(owner.GetAllElements(&list) == S_OK);
        std::vector<int> numbers;
        for (IUnknown* const entry : list) {
            ZELDbBinary uuid;
            static_cast<OXMIDicElementH*>(entry)->GetUuid(&uuid);
            numbers.push_back(uuid.Data()[14] * 256 + uuid.Data()[15]);
        }
        return numbers;
    }
};

TEST_F(ZanDicAllAttributesTest, AnswersLikeAModelThatComputesEveryTime) {
    const bool holds = rc::check([this] {
        Manager().End();  // what an iteration that failed has left
        Manager().Init(0);
        const auto package = Package("Random");
        std::vector<Held<OXMIDicClass>> classes;
        for (int number = 0; number < kClasses; ++number) {
            classes.push_back(Class(*package, ("C" + std::to_string(number)).c_str()));
        }
        PlainModel model;
        int attributes = 5000;
        const int steps = *rc::gen::resize(1000, rc::gen::inRange(0, 300));
        for (int step = 0; step < steps; ++step) {
            const auto any = [](int end) { return *rc::gen::resize(1000, rc::gen::inRange(0, end)); };
            const int owner = any(kClasses);
            const int nameNumber = any(kNames);
            const ZELString name("a" + std::to_string(nameNumber));
            OXMIDicClass& face = *classes[static_cast<std::size_t>(owner)];
            switch (any(8)) {
                case 0:
                case 1: {
                    const ZELDbBinary uuid = TestUuid(static_cast<unsigned>(++attributes));
                    Held<OXMIDicSimple> made;
                    RC_ASSERT(Succeeded(face.CreateSimple(&name, &uuid, made.Out())) ==
                              model.Create(owner, nameNumber, attributes));
                    break;
                }
                case 2:
                    RC_ASSERT(Succeeded(face.RemoveElement(&name)) == model.Remove(owner, nameNumber));
                    break;
                case 3:
                case 4: {
                    // Mostly chains, so that hierarchies grow deep.
                    const int upper = any(3) != 0 && owner != 0 ? owner - 1 : any(kClasses);
                    RC_ASSERT(Succeeded(face.SetSuperClass(classes[static_cast<std::size_t>(upper)].Get())) ==
                              model.SetSuper(owner, upper));
                    break;
                }
                default:
                    RC_ASSERT(AllNumbers(face) == model.All(owner));
            }
        }
        for (int number = 0; number < kClasses; ++number) {
            RC_ASSERT(AllNumbers(*classes[static_cast<std::size_t>(number)]) == model.All(number));
        }
        RemovePackage("Random");
        ClearWritten();
    });

    EXPECT_TRUE(holds);
}

TEST_F(ZanDicAllAttributesTest, AnswersOfAHierarchyEndOneByOne) {
    constexpr int kDepth = 30000;
    const auto package = Package("Deep");
    Held<OXMIDicClass> last = Class(*package, "C0");
    for (int level = 1; level < kDepth; ++level) {
        last = SubClass(*package, ("C" + std::to_string(level)).c_str(), *last);
        Simple(*last, ("a" + std::to_string(level)).c_str());
    }
    EXPECT_EQ(last->GetAllElements(nullptr), S_OK);

    RemovePackage("Deep");

    HeldList none;
    EXPECT_EQ(last->GetAllElements(&none), S_OK);
    EXPECT_EQ(none.Size(), 0);
}

}  // namespace
