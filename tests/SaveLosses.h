/// What a saved package does not carry. The guide's tables are made of this one, and random models are drawn
/// from everything else, so that what is not documented as lost is shown to come back.
#ifndef SAVE_LOSSES_H
#define SAVE_LOSSES_H

#include <span>
#include <string>
#include <string_view>

/// A loss that does not follow from the vocabulary of documents.
enum class Loss {
    // The document loads, and differs from the model.
    AccessModeNone,
    NumberWithoutWord,
    TypeWithoutWord,
    HalfInverse,
    LateInjective,
    ForbiddenCharacter,
    UnlistedPackage,
    FreeName,
    StoredReference,
    InstanceFlag,
    LostLink,
    Command,
    Block,
    Comment,
    // There is no document, or it does not load.
    PackageName,
    Domain,
    EmptyName,
    SameName,
    UnusedPackage,
    UnextensibleScope,
    RedefinedTarget,
    MissingReference,
    OddLink,
};

struct LossRow {
    Loss loss;
    bool loads;    ///< whether the document can be loaded
    bool isDrawn;  ///< whether random models can have it
    std::string_view what;
    std::string_view instead;  ///< what comes back, or what happens
};

/// All of them, in the order of the guide.
std::span<const LossRow> LossRows();

/// Whether documents have a place for a property of the kind that is written under \p tag.
/// \param property the name of an attribute; kFreeProperty; or the tag of what is written inside.
bool IsSaved(std::string_view tag, std::string_view property);

/// Stands for free attributes.
inline constexpr std::string_view kFreeProperty = "";

/// \returns the tables of the guide.
std::string TableOfProperties();
std::string TableOfLosses(bool loads);

#endif
