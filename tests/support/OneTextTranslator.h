#pragma once

#include "Text.h"

#include <QTranslator>

/// Translates one text, and nothing else.
class OneTextTranslator : public QTranslator
{
public:
    OneTextTranslator(const char *context, const char *source, const char *translation)
        : m_key(s(context) + s(source)), m_translation(s(translation))
    {
    }
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return s(context) + s(source) == m_key ? m_translation : QString();
    }

private:
    QString m_key;
    QString m_translation;
};
