/// Random models, for properties that hold for every model that a document can carry.
#ifndef RANDOM_MODEL_H
#define RANDOM_MODEL_H

#include <functional>
#include <optional>

#include "OXMIDicMgr.h"
#include "SaveLosses.h"

/// Draws a number from 0 to its argument - 1.
using Choice = std::function<int(int)>;

/// \returns choices that are the same for the same \p seed.
Choice SeededChoice(unsigned seed);

/// Makes three packages in an initialised, empty dictionary: "Base", "Scope", and "Top", which uses the first
/// and scopes the second and refers to elements of both; at times "Scope" uses "Base", and "Base" uses "Top"
/// and refers to elements of it. They have elements of every kind. Names and texts are hostile to writers.
///
/// Properties that IsSaved denies and what LossRows lists are left out, apart from \p drawn: that loss the
/// model may have, most often in several places.
void MakeRandomModel(OXMIDicMgr& manager, const Choice& choice, std::optional<Loss> drawn = {});

#endif
