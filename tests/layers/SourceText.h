#pragma once

#include <QString>
#include <QVector>

namespace CUI {

/// One preprocessor directive, continuation lines joined, comments gone.
struct Directive {
    int line = 0;
    /// From the character after '#', trimmed.
    QString text;
};

/// The preprocessor directives of a C++ source. Comments and raw strings hide what is in them.
QVector<Directive> directivesOf(const QString &source);

} // namespace CUI
