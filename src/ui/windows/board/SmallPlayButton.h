// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

#include <functional>

namespace quillora {

class Round;
class Scoring;
struct Settings;

// The small twin of JUGAR: it plays too, and keys typed on it are
// guesses; behind a lock it rests.
class SmallPlayButton final : public QPushButton {
public:
    SmallPlayButton(const Round& round, const Scoring& scoring, const Settings& settings,
                    std::function<void()> play, QWidget* board);

    void sync();
    void paint(const QString& game, const QString& disabled);

private:
    const Round& m_round;
    const Scoring& m_scoring;
    const Settings& m_settings;
};

} // namespace quillora
