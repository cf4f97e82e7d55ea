// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/BoardLook.h"
#include "models/board/BoardAreas.h"
#include "platform/TwipScale.h"
#include "round/Keyboard.h"

#include <QFont>
#include <QStaticText>
#include <QString>
#include <QWidget>

#include <array>
#include <functional>
#include <optional>
#include <string>

namespace quillora {

class AnswerBox;
class KeyFaces;
class Round;

// The on-screen keyboard and its digit panel. Mouse moves, presses and
// releases go to the model, which decides the faces and what a click does.
class KeyboardView final : public QWidget {
public:
    KeyboardView(const Round& round, const AnswerBox& answer, KeyFaces& faces,
                 std::function<void(BoardAreas)> changed, QWidget* parent);

    static constexpr int kLeftTwips = 120;
    static constexpr int kTopTwips = 4920;
    static constexpr int kWidthTwips = 11415;
    static constexpr int kHeightTwips = 975;
    static constexpr int kDigitsLeftTwips = 3000;
    static constexpr int kDigitsWidthTwips = 8535;
    static constexpr int kDigitsHeightTwips = 495;

    // The key under a point of this widget, or -1.
    int keyAt(QPoint point) const;
    // The key's rectangle in this widget's pixels.
    QRect keyRect(int key) const;
    // Whether the board shows the key, and whether a click on it would do
    // anything now.
    bool keyShown(int key) const;
    bool keyUsable(int key) const;
    const Round& round() const { return m_round; }
    const AnswerBox& answerBox() const { return m_answer; }
    // A whole click on the key, as a screen reader asks for one.
    void press(int key);
    // Repaints, and tells a screen reader of every key that changed.
    void sync();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    // What a screen reader was last told of each key.
    struct Spoken {
        QString name;
        QString description;
        bool shown = false;
        bool usable = false;
    };
    // What a key was last painted with, and what decides what it says: a
    // key whose face is the same is neither painted nor read again.
    struct Face {
        bool shown = false;
        bool usable = false;
        bool tried = false;
        KeyLook look;
        std::u32string caption;
        bool operator==(const Face&) const = default;
    };
    Face faceOf(int key) const;
    // A key's caption laid out once in its font, and again only when it
    // changes ("Escribir" and "Cancelar" share a key).
    const QStaticText& captionText(int key);

    const Round& m_round;
    const AnswerBox& m_answer;
    KeyFaces& m_mouse;
    std::function<void(BoardAreas)> m_changed;
    std::array<Spoken, kKeyCount> m_spoken{};
    std::array<std::optional<Face>, kKeyCount> m_faces;
    bool m_digitsShown = false;
    // Built once: the database lookup behind a font is too dear for every key
    // of every paint.
    // The board's scale, followed as the keys are brought in step and painted.
    void followScale();
    const QFont& keyFont(int key) { return (key >= 38 ? m_wideKeyFont : m_keyFont).at(m_scale); }

    TwipScale m_scale;
    ScaledFont m_keyFont;
    ScaledFont m_wideKeyFont;
    std::array<QStaticText, kKeyCount> m_captions;
};

} // namespace quillora
