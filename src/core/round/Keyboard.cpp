// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "round/Keyboard.h"

namespace quillora {

namespace {

constexpr int kKeyWidth = 735;
constexpr int kKeyHeight = 495;
constexpr int kKeyPitch = 720;
constexpr int kSecondRowTop = 480;

constexpr std::u32string_view kLetterKeys = U"ABCDEFGHIJKLMN\u00D1OPQRSTUVWXYZ";
constexpr std::u32string_view kDigitKeys = U"1234567890";

} // namespace

KeyPlace keyPlace(int key) {
    if (key >= 1 && key <= 14) {
        return {KeyPanel::Letters, kKeyPitch * (key - 1), 0, kKeyWidth, kKeyHeight};
    }
    if (key >= 15 && key <= 27) {
        return {KeyPanel::Letters, kKeyPitch * (key - 15), kSecondRowTop, kKeyWidth, kKeyHeight};
    }
    if (key >= 28 && key <= 37) {
        return {KeyPanel::Digits, kKeyPitch * (key - 28), 0, kKeyWidth, kKeyHeight};
    }
    switch (key) {
    case kDigitPanelKey:
        return {KeyPanel::Letters, 10080, 0, 1335, kKeyHeight};
    case kWriteKey:
        return {KeyPanel::Letters, 9360, kSecondRowTop, 2055, kKeyHeight};
    default:
        return {KeyPanel::Digits, 7200, 0, 1335, kKeyHeight};
    }
}

std::u32string_view keyCaption(int key) {
    if (key >= 1 && key <= 27) {
        return kLetterKeys.substr(static_cast<std::size_t>(key - 1), 1);
    }
    if (key >= 28 && key <= 37) {
        return kDigitKeys.substr(static_cast<std::size_t>(key - 28), 1);
    }
    switch (key) {
    case kDigitPanelKey:
        return U"123";
    case kWriteKey:
        return U"Escribir";
    default:
        return U"x";
    }
}

int keyIndexOf(char32_t letter) {
    if (const auto pos = kLetterKeys.find(letter); pos != std::u32string_view::npos) {
        return static_cast<int>(pos) + 1;
    }
    if (const auto pos = kDigitKeys.find(letter); pos != std::u32string_view::npos) {
        return static_cast<int>(pos) + 28;
    }
    return -1;
}

char32_t keyLetter(int key) {
    if (key >= 1 && key <= 37) {
        return keyCaption(key).front();
    }
    return 0;
}

int filterAnswerKey(int keyCode, bool boxHasText) {
    if (keyCode == 8) {
        return keyCode;
    }
    if (keyCode == ' ') {
        return boxHasText ? keyCode : 0;
    }
    if (keyCode > 0 &&
        kAlphabet.find(static_cast<char32_t>(keyCode)) != std::u32string_view::npos) {
        return keyCode;
    }
    return 0;
}

char32_t gameUpper(char32_t ch) {
    if (ch >= U'a' && ch <= U'z') {
        return ch - U'a' + U'A';
    }
    if (ch == kLowerEnye) {
        return kUpperEnye;
    }
    return ch;
}

ComputerKey mapComputerKey(char32_t typed) {
    if (typed == U'!') {
        return {KeyAction::ToggleAnswer, 0};
    }
    if (typed == U'#') {
        return {KeyAction::ToggleDigits, 0};
    }
    if (kAlphabet.find(typed) != std::u32string_view::npos) {
        return {KeyAction::Guess, gameUpper(typed)};
    }
    return {};
}

std::string_view keyTooltip(int key) {
    switch (key) {
    case kWriteKey:
        return " Escribir respuesta. ";
    case kDigitPanelKey:
        return " Mostrar números ";
    case kCloseDigitsKey:
        return " Ocultar números. ";
    default:
        return {};
    }
}

char32_t composeDeadKey(char32_t accent, char32_t base) {
    struct Accent {
        char32_t mark;
        std::u32string_view bases;
        std::u32string_view composed;
    };
    static constexpr Accent kAccents[] = {
        {U'\u00B4', U"aeiouyAEIOUY",
         U"\u00E1\u00E9\u00ED\u00F3\u00FA\u00FD\u00C1\u00C9\u00CD\u00D3\u00DA\u00DD"},
        {U'`', U"aeiouAEIOU", U"\u00E0\u00E8\u00EC\u00F2\u00F9\u00C0\u00C8\u00CC\u00D2\u00D9"},
        {U'^', U"aeiouAEIOU", U"\u00E2\u00EA\u00EE\u00F4\u00FB\u00C2\u00CA\u00CE\u00D4\u00DB"},
        {U'\u00A8', U"aeiouyAEIOU",
         U"\u00E4\u00EB\u00EF\u00F6\u00FC\u00FF\u00C4\u00CB\u00CF\u00D6\u00DC"},
        {U'~', U"anoANO", U"\u00E3\u00F1\u00F5\u00C3\u00D1\u00D5"},
        {U'\u00B0', U"aA", U"\u00E5\u00C5"},
        {U'\u00B8', U"cC", U"\u00E7\u00C7"},
    };
    for (const Accent& a : kAccents) {
        if (a.mark != accent) {
            continue;
        }
        if (base == U' ') {
            return accent;
        }
        const auto at = a.bases.find(base);
        return at == std::u32string_view::npos ? 0 : a.composed[at];
    }
    return 0;
}

} // namespace quillora
