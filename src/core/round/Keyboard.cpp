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

int Verificar_Tecla(int keyCode, bool boxHasText) {
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

} // namespace quillora
