#pragma once

namespace Host {

/// Gives users of English the sentences in translations/UiCustomizations_en.ts for the texts that
/// the library has only as a catchword: its tool tips and the titles of its windows.
void installTranslations();

} // namespace Host
