#pragma once

#include "Table.h"

namespace CUI::Bench {

/// \name What is measured, one function for each row of the table in main.cpp
/// @{
Trial loadingBesideBareReading();
Trial loadingOf100k();
Trial saving();
Trial firstListingOfSets();
Trial laterListingOfSets();

Trial edit();
Trial cancellingOf10k();
Trial audit();
Trial sheet();

/// Of the text at that place in the sequence, after the one before it.
Trial typing(int place);
Trial hotkey();
Trial sequenceOf100k();
Trial sorting(int column);
Trial loadingOfModel();

Trial openingOfEditor();
Trial sequenceInEditor();
Trial selectionInEditor();
Trial assignmentInEditor();
Trial removalInEditor();
Trial undoingInEditor();
Trial switchBetweenSets();

Trial openingOfPalette();
Trial keystrokeInPalette();
Trial editBesideConflicts();
Trial modifierOfKeyboard();
Trial editBesideKeyboard();
/// @}

} // namespace CUI::Bench
