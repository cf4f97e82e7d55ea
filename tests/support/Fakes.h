// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/WebLookUp.h"
#include "ports/Announcer.h"
#include "ports/Dialogs.h"
#include "ports/NetworkCheck.h"
#include "ports/Random.h"
#include "ports/SoundPlayer.h"
#include "ports/Web.h"
#include "round/Round.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace quillora {

// A loudspeaker that keeps what it was asked to play; each sound ends when
// the test says so, or at once when told to.
class RecordingSounds : public SoundPlayer {
public:
    void load() override { ++loads; }
    void play(int number, std::function<void()> ended) override {
        played.push_back(number);
        if (endAtOnce) {
            ended();
        } else {
            waiting.push_back(std::move(ended));
        }
    }
    void endAll() {
        auto ends = std::move(waiting);
        waiting.clear();
        for (auto& end : ends) {
            end();
        }
    }

    int loads = 0;
    bool endAtOnce = false;
    std::vector<int> played;
    std::vector<std::function<void()>> waiting;
};

// Answers questions from a script and keeps every box it was shown, so a test
// can check both what the player was told and what the game did next.
class ScriptedDialogs : public Dialogs {
public:
    struct Shown {
        bool question = false;
        Icon icon = Icon::Information;
        std::string text;
        std::string title;
        Question kind = Question::YesNo;
        bool about = false;
    };

    void answer(std::initializer_list<bool> answers) {
        m_answers.insert(m_answers.end(), answers.begin(), answers.end());
    }

    void message(Icon icon, const std::string& text, const std::string& title) override {
        show({false, icon, text, title});
    }
    bool ask(Question kind, const std::string& text, const std::string& title) override {
        show({true, Icon::Information, text, title, kind});
        if (m_answers.empty()) {
            ADD_FAILURE() << "unexpected question: " << text;
            return false;
        }
        const bool yes = m_answers.front();
        m_answers.pop_front();
        return yes;
    }

    void about(const std::string& title, const std::string& text) override {
        Shown box{false, Icon::Information, text, title};
        box.about = true;
        show(std::move(box));
    }

    bool scriptUsedUp() const { return m_answers.empty(); }
    // Runs as each box comes up: what is on screen behind it.
    std::function<void()> onAsk;

    std::vector<Shown> shown;

private:
    void show(Shown box) {
        if (onAsk) {
            onAsk();
        }
        shown.push_back(std::move(box));
    }

    std::deque<bool> m_answers;
};

// Hands out the fractions a test queued; running dry is a test fault.
class QueuedRandom : public Random {
public:
    void queue(std::initializer_list<double> fractions) {
        m_fractions.insert(m_fractions.end(), fractions.begin(), fractions.end());
    }
    void reseed() override {}
    double fraction() override {
        if (m_fractions.empty()) {
            ADD_FAILURE() << "no fraction queued";
            // Alternate, so a draw that repeats until it changes still ends.
            m_dry = !m_dry;
            return m_dry ? 0.5 : 0.0;
        }
        const double f = m_fractions.front();
        m_fractions.pop_front();
        return f;
    }

private:
    std::deque<double> m_fractions;
    bool m_dry = false;
};

// Keeps what the game said to a screen reader, in order, with its urgency.
class RecordingAnnouncer : public Announcer {
public:
    void announce(const std::string& text, Urgency urgency) override {
        said.push_back(text);
        urgent.push_back(urgency == Urgency::Urgent);
    }
    // The last thing said, or "" when nothing was.
    std::string last() const { return said.empty() ? std::string() : said.back(); }
    void clear() {
        said.clear();
        urgent.clear();
    }

    std::vector<std::string> said;
    std::vector<bool> urgent;
};

// Counts what a game hands over to the rest of the program.
struct RecordingEvents : RoundEvents {
    void nextTurn() override { ++turns; }
    void roundWon() override { ++won; }
    void roundLost() override { ++lost; }
    void correctionAsked(bool asking) override { panelShown.push_back(asking); }
    void settingsChanged() override { ++saved; }
    void titleChanged() override { ++titles; }

    int turns = 0, titles = 0, won = 0, lost = 0, saved = 0;
    std::vector<bool> panelShown;
};

// A network that is up or down as the test says.
struct FakeNetwork : NetworkCheck {
    bool networkAlive() override {
        ++asked;
        return alive;
    }

    bool alive = true;
    int asked = 0;
};

// A browser that remembers the pages it was asked to open.
struct FakeWeb : Web {
    void openUrl(const std::string& url) override { opened.push_back(url); }

    std::vector<std::string> opened;
};

// The desktop as a test sees it: the look-ups of the game on a network and a
// browser the test controls, telling the player through the test's boxes.
struct FakeDesktop {
    static constexpr const char* kHelpPage = "file:///usr/share/quillora-vesta/ayuda.html";
    explicit FakeDesktop(Dialogs& dialogs)
        : lookUp(network, web, dialogs, Endpoints::fromBuild(kHelpPage)) {}

    FakeNetwork network;
    FakeWeb web;
    WebLookUp lookUp;
};

} // namespace quillora
