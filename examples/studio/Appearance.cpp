#include "Appearance.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <QToolTip>

namespace Studio::Appearance {

namespace {

QPalette darkPalette()
{
    QPalette palette(QColor(0x3a, 0x3c, 0x40), QColor(0x35, 0x37, 0x3a));
    palette.setColor(QPalette::WindowText, QColor(0xdc, 0xdc, 0xdc));
    palette.setColor(QPalette::Base, QColor(0x2a, 0x2b, 0x2e));
    palette.setColor(QPalette::AlternateBase, QColor(0x30, 0x32, 0x35));
    palette.setColor(QPalette::Text, QColor(0xdc, 0xdc, 0xdc));
    palette.setColor(QPalette::ButtonText, QColor(0xdc, 0xdc, 0xdc));
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(0x24, 0x25, 0x28));
    palette.setColor(QPalette::ToolTipText, QColor(0xe4, 0xe4, 0xe4));
    palette.setColor(QPalette::PlaceholderText, QColor(0x8e, 0x90, 0x94));
    palette.setColor(QPalette::Link, QColor(0x7a, 0xb4, 0xf2));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x74, 0xc0));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x7c, 0x7e, 0x82));
    // The style engraves disabled entries of a menu with this colour, which blurs them.
    palette.setColor(QPalette::Disabled, QPalette::Light, palette.color(QPalette::Base));
    return palette;
}

} // namespace

void apply(bool dark)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QPalette palette = dark ? darkPalette() : QApplication::style()->standardPalette();
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

} // namespace Studio::Appearance
