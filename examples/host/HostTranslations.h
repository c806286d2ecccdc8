#pragma once

class QLocale;

namespace Host {

/// Gives users of English the sentences in translations/UiCustomizations_en.ts for the texts that
/// the library has only as a catchword: its tool tips and the titles of its windows.
void installTranslations();

/// The names of keys and the texts of the toolkit's own dialogs in the language of @p locale, where
/// they are installed. To be called once.
void installToolkitTranslations(const QLocale &locale);

} // namespace Host
