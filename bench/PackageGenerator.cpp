#include "PackageGenerator.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace {

/// splitmix64: the same numbers everywhere.
class Numbers {
public:
    explicit Numbers(std::uint64_t seed) : state_(seed) {}

    std::uint64_t Next() {
        std::uint64_t value = state_ += 0x9e3779b97f4a7c15;
        value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9;
        value = (value ^ (value >> 27)) * 0x94d049bb133111eb;
        return value ^ (value >> 31);
    }
    int Below(int bound) { return static_cast<int>(Next() % static_cast<std::uint64_t>(bound)); }

private:
    std::uint64_t state_;
};

/// UUIDs are numbered, so that a reference can be written before its target.
std::string UuidText(std::uint64_t family, int number) {
    Numbers numbers(family * 0x1000000 + static_cast<std::uint64_t>(number));
    constexpr std::array<char, 17> kDigits{"0123456789ABCDEF"};
    std::string text;
    for (int index = 0; index < 32; ++index) {
        if (index == 8 || index == 12 || index == 16) text += '-';
        text += kDigits[static_cast<std::size_t>(numbers.Next() & 15)];
    }
    return text;
}

enum Family : std::uint64_t { kPackage, kClass, kAttribute, kEnum, kEnumerator };

class Writer {
public:
    Writer(std::string& text, const PackageShape& shape) : text_(text), shape_(shape) {
        constexpr int kElementsPerEnum = 710;  // one enumeration for about 34 classes of 20 attributes
        enums_ = std::max(1, shape.elements / kElementsPerEnum);
        const int left = shape.elements - enums_ * (1 + shape.enumeratorsPerEnum);
        classes_ = std::max(1, (left + shape.attributesPerClass) / (1 + shape.attributesPerClass));
    }

    int Write(const std::string& name) {
        text_ += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Package Name=\"" + name + "\" Uuid=\"" +
                 UuidText(kPackage, 0) + "\" Domain=\"VALKOR\">\n";
        for (int number = 0; number < enums_; ++number) WriteEnum(number);
        for (int number = 0; number < classes_; ++number) WriteClass(number);
        text_ += "</Package>\n";
        return enums_ * (1 + shape_.enumeratorsPerEnum) + classes_ * (1 + shape_.attributesPerClass);
    }

private:
    void Attribute(const char* name, const std::string& value) {
        text_ += ' ';
        text_ += name;
        text_ += "=\"";
        text_ += value;
        text_ += '"';
    }

    void Open(const char* tag, const std::string& name, const std::string& uuid) {
        text_ += '<';
        text_ += tag;
        Attribute("Name", name);
        Attribute("Uuid", uuid);
    }

    void WriteEnum(int number) {
        text_ += "  ";
        Open("Enum", "Enumeration" + std::to_string(number), UuidText(kEnum, number));
        text_ += ">\n";
        for (int value = 0; value < shape_.enumeratorsPerEnum; ++value) {
            text_ += "    ";
            Open("Enumerator", "Value" + std::to_string(value),
                 UuidText(kEnumerator, number * shape_.enumeratorsPerEnum + value));
            Attribute("Value", std::to_string(value + 1));
            text_ += "/>\n";
        }
        text_ += "  </Enum>\n";
    }

    void WriteClass(int number) {
        text_ += "  ";
        Open("Class", "BusinessClass" + std::to_string(number), UuidText(kClass, number));
        Attribute("Persistent", "Yes");
        Attribute("Visibility", "Public");
        Attribute("Abstract", number % 7 == 0 ? "Yes" : "No");
        Attribute("LateType", "");
        // Chains of 1 to 5 classes: each block of 15 classes holds one of every length.
        static constexpr std::array<bool, 15> kHasSuper{false, false, true,  false, true, true, false, true,
                                                        true,  true,  false, true,  true, true, true};
        if (number > 0 && kHasSuper[static_cast<std::size_t>(number % 15)]) {
            Attribute("SuperName", "BusinessClass" + std::to_string(number - 1));
            Attribute("SuperRef", UuidText(kClass, number - 1));
        }
        text_ += ">\n";
        for (int place = 0; place < shape_.attributesPerClass; ++place) WriteMember(number, place);
        text_ += "  </Class>\n";
    }

    void WriteMember(int classNumber, int place) {
        const int number = classNumber * shape_.attributesPerClass + place;
        const std::string name = "attribute" + std::to_string(classNumber) + "_" + std::to_string(place);
        const std::string uuid = UuidText(kAttribute, number);
        const int lot = place * 20 / shape_.attributesPerClass;  // twentieths of the class
        text_ += "    ";
        if (lot < 14)
            WriteSimple(name, uuid);
        else if (lot < 15)
            WriteEnumerated(name, uuid);
        else if (lot < 19)
            WriteRelationship(name, uuid);
        else
            WriteInverse(name, uuid, number);
        text_ += "/>\n";
    }

    void WriteCommon() {
        Attribute("Visibility", "Public");
        Attribute("AccessMode", "ReadWrite");
        Attribute("Mandatory", numbers_.Below(2) == 0 ? "Yes" : "No");
    }

    void WriteSimple(const std::string& name, const std::string& uuid) {
        static constexpr std::array<const char*, 4> kTypes{"String", "Integer", "Double", "Boolean"};
        Open("Simple", name, uuid);
        const std::size_t type = static_cast<std::size_t>(numbers_.Below(4));
        WriteCommon();
        Attribute("Type", kTypes[type]);
        if (type == 0) {
            Attribute("MaxLength", std::to_string(16 + numbers_.Below(240)));
            Attribute("CaseMode", "Mixed");
        }
        Attribute("MultiValuated", "No");
        Attribute("Sensitive", "No");
        Attribute("UpdateFacet", "NEUTRAL");
    }

    void WriteEnumerated(const std::string& name, const std::string& uuid) {
        Open("Simple", name, uuid);
        WriteCommon();
        Attribute("TargetRef", UuidText(kEnum, numbers_.Below(enums_)));
        Attribute("MultiValuated", "No");
        Attribute("Sensitive", "No");
        Attribute("UpdateFacet", "NEUTRAL");
    }

    void WriteRelation(int target) {
        Attribute("TargetRef", UuidText(kClass, target));
        Attribute("TargetName", "BusinessClass" + std::to_string(target));
        Attribute("Injective", "No");
        Attribute("MultiValuated", "Yes");
        Attribute("Aggregation", "Shared");
        Attribute("Lower", "0");
        Attribute("Upper", "10");
        Attribute("CollectionType", "List");
        Attribute("Sensitive", "No");
    }

    void WriteRelationship(const std::string& name, const std::string& uuid) {
        Open("Relationship", name, uuid);
        WriteCommon();
        WriteRelation(numbers_.Below(classes_));
    }

    /// Inverts the relationship before it in the class.
    void WriteInverse(const std::string& name, const std::string& uuid, int number) {
        Open("Inverse", name, uuid);
        WriteCommon();
        WriteRelation(numbers_.Below(classes_));
        Attribute("InverseOfRef", UuidText(kAttribute, InvertedBy(number)));
    }

    /// The nearest earlier attribute that is a relationship; the first inverse may stand several after.
    int InvertedBy(int number) const {
        const int perClass = shape_.attributesPerClass;
        int place = number % perClass;
        while (place > 0 && place * 20 / perClass >= 19) --place;
        return number - number % perClass + place;
    }

    std::string& text_;
    PackageShape shape_;
    int enums_;
    int classes_;
    Numbers numbers_{20};
};

}  // namespace

GeneratedPackage GeneratePackage(const std::string& name, const PackageShape& shape) {
    GeneratedPackage package;
    package.name = name;
    package.document.reserve(static_cast<std::size_t>(shape.elements) * 330);
    package.elements = Writer(package.document, shape).Write(name);
    return package;
}
