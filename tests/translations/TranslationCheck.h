#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A text of a translation source (*.ts).
struct TranslatedText {
    QString context;
    QString source;
    QString translation;
    QString type; ///< "unfinished", "vanished", "obsolete", or empty when it is in use
};

/// All texts of a file; aborts the test when it cannot be read.
QList<TranslatedText> readTranslations(const QString &path);

/// Updates translation sources from the C++ sources in a folder, as ./dev translations does, but
/// keeps what has vanished. Returns what the tool says when it fails, else nothing.
QString updateTranslations(const QString &sourceFolder, const QStringList &files);

/// What keeps a text from being shown: that it is not translated, or no longer used.
QString complaintAboutState(const TranslatedText &text);

/// What a translation has lost or gained that must be as in the source: placeholders, the mnemonic,
/// line breaks, an ellipsis that announces a dialog, a file pattern, the name of a product.
QString complaintAboutForm(const TranslatedText &text);
