#include "desk/window/theme.h"

#include "desk/window/desk_texts.h"
#include "desk/window/translation.h"

#include <QCoreApplication>
#include <cmath>
#include <gtest/gtest.h>

namespace window {
namespace {

double luminance(const QColor& color) {
    const auto linear = [](double share) {
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(Token pen, Token ground, Scheme scheme) {
    const double first = luminance(color(pen, scheme));
    const double second = luminance(color(ground, scheme));
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

TEST(Theme, TextsAndMarksStandOutFromTheirGround) {
    for (const Scheme scheme : {Scheme::Dark, Scheme::Light}) {
        for (const Token ground : {Token::Base, Token::Raised, Token::Field}) {
            for (const Token text : {Token::Text, Token::Text2, Token::Warn, Token::Error, Token::Ok}) {
                EXPECT_GE(contrast(text, ground, scheme), 4.5)
                    << tokenName(text) << " on " << tokenName(ground);
            }
            EXPECT_GE(contrast(Token::Border, ground, scheme), 3) << tokenName(ground);
            EXPECT_GE(contrast(Token::Accent, ground, scheme), 4.5) << tokenName(ground);
        }
        EXPECT_GE(contrast(Token::OnAccent, Token::Accent, scheme), 4.5);
        EXPECT_GE(contrast(Token::Text, Token::AccentQuiet, scheme), 4.5);
        for (const Token mark : {Token::Select, Token::Hover, Token::Preview, Token::Snap, Token::Window,
                                 Token::Crossing, Token::Error}) {
            EXPECT_GE(contrast(mark, Token::Canvas, scheme), 4.5) << tokenName(mark);
        }
        EXPECT_FALSE(themeStyleSheet(scheme).contains('@')) << "each name of the sheet is one of the table";
        EXPECT_EQ(schemeOf(themePalette(scheme)), scheme);
    }
}

TEST(TranslationTest, LinesOfTheDeskSpeakTheWindowsLanguage) {
    EXPECT_EQ(deskText("Opened plan.dxf"), "Opened plan.dxf");
    Translation french;
    french.read(translationFile("Fran\u00E7ais"));
    QCoreApplication::installTranslator(&french);
    EXPECT_EQ(deskText("Opened plan.dxf"), "plan.dxf ouvert");
    EXPECT_EQ(deskText("p.dxf is open elsewhere: Anne. Write over it?"),
              QString::fromUtf8("p.dxf est ouvert ailleurs : Anne. L'écraser ?"));
    EXPECT_EQ(deskText("(1 2)"), "(1 2)");
    EXPECT_EQ(deskText("1 erased"), QString::fromUtf8("1 effacé"));
    EXPECT_EQ(deskText("2 erased"), QString::fromUtf8("2 effacés"));
    QCoreApplication::removeTranslator(&french);
}

TEST(TranslationTest, WhatCountsHasASingularByTheRulesOfItsLanguage) {
    const auto counted = [](const std::string& language) {
        Translation texts;
        texts.read(translationFile(language));
        QCoreApplication::installTranslator(&texts);
        QStringList counts;
        for (const int count : {0, 1, 2})
            counts.append(QCoreApplication::translate("window", "%n references", nullptr, count));
        QCoreApplication::removeTranslator(&texts);
        return counts.join(", ");
    };
    EXPECT_EQ(counted("English"), "0 references, 1 reference, 2 references");
    EXPECT_EQ(counted("Fran\u00E7ais"), QString::fromUtf8("0 référence, 1 référence, 2 références"));
}

}  // namespace
}  // namespace window
