// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/BoardControls.h"

#include "look/Twips.h"
#include "models/board/BoardModel.h"
#include "models/board/BoardSpeech.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "windows/QtColour.h"
#include "windows/RoundedLabel.h"
#include "windows/board/AgainLabels.h"
#include "windows/board/AnswerPanel.h"
#include "windows/board/AutoMarker.h"
#include "windows/board/BackgroundView.h"
#include "windows/board/BoardAccessible.h"
#include "windows/board/CountdownLabel.h"
#include "windows/board/GallowsView.h"
#include "windows/board/HistoryPanel.h"
#include "windows/board/KeyboardView.h"
#include "windows/board/LookUpLabel.h"
#include "windows/board/PhraseView.h"
#include "windows/board/PlayPanel.h"
#include "windows/board/ScorePanel.h"
#include "windows/board/SessionPanel.h"
#include "windows/board/SidePanel.h"
#include "windows/board/SmallPlayButton.h"
#include "windows/board/SoundButton.h"
#include "windows/board/StatsPanel.h"
#include "windows/board/StrikeStrip.h"
#include "windows/board/ThemeBox.h"
#include "windows/board/ThemesPanel.h"
#include "windows/board/TipStrip.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include <array>

namespace quillora {

namespace {

// Where the board's own labels sit, in twips.
constexpr int kStatusLeft = 3000, kStatusTop = 300, kStatusWidth = 5040, kStatusHeight = 720;
constexpr int kCounterLeft = 10200, kCounterTop = 1050, kCounterWidth = 1095, kCounterHeight = 360;

} // namespace

BoardControls::BoardControls(BoardModel& model, Announcer& announcer, QWidget* board,
                             const BoardActions& actions)
    : m_model(model), m_board(board) {
    const auto& changed = actions.changed;
    background = new BackgroundView(model.appearance(), board);
    gallows = new GallowsView(model.round().figure(), board);
    phrase = new PhraseView(model.round(), model.appearance(), board);
    SidePanels& panels = model.panels();
    sidePanel = new SidePanel(panels.side(), board);
    statsPanel = new StatsPanel(panels.stats(), announcer, changed, board);
    historyPanel = new HistoryPanel(panels, model.lookUps(), changed, actions.boardKeys, board);
    themesPanel = new ThemesPanel(panels, changed, actions.boardKeys, board);

    statusLabel = new RoundedLabel(board);
    placeInTwips(statusLabel, QRect(kStatusLeft, kStatusTop, kStatusWidth, kStatusHeight));
    statusLabel->setAlignment(Qt::AlignCenter);
    setScaledFont(statusLabel, Fonts::display(18));

    Round& round = model.round();
    Scoring& scoring = model.scoring();
    themeBox = new ThemeBox(round, scoring, panels, model.tip(), changed, board);

    counterLabel = new RoundedLabel(board, QStringLiteral("XX/YY"));
    placeInTwips(counterLabel, QRect(kCounterLeft, kCounterTop, kCounterWidth, kCounterHeight));
    counterLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setScaledFont(counterLabel, Fonts::display(12));
    counterLabel->setToolTip(QStringLiteral(" Letras reveladas. "));
    timeLabel = new CountdownLabel(model.countdown(), model.appearance(), board);

    strikes = new StrikeStrip(round, model.keyFaces(), panels, changed, board);
    tipStrip = new TipStrip(model.tip(), board);
    const Settings& settings = model.shared().settings;
    playPanel =
        new PlayPanel(round, scoring, model.commands(), settings, changed, actions.play, board);
    // The small twin of JUGAR: it plays too, and keys typed on it are guesses.
    smallPlayButton = new SmallPlayButton(round, scoring, settings, actions.play, board);
    lookUpLabel = new LookUpLabel(round, model.lookUps(), board);
    answerPanel = new AnswerPanel(round.answerBox(), changed, actions.shortcut, board);
    keyboard =
        new KeyboardView(round, round.answerBox(), model.keyFaces(), actions.areasChanged, board);
    scorePanel = new ScorePanel(scoring, model.scorePulse(), model.turn(), panels, changed,
                                actions.names, board);
    autoMarker = new AutoMarker(round.phraseChoice(), changed, board);
    soundButton = new SoundButton(model.commands(), model.keyFaces(), settings, changed, board);
    againLabels = new AgainLabels(model.survival(), changed, board);
    sessionPanel = new SessionPanel(model.sessions(), model.appearance(), changed, board);

    // Tab goes round the board as it reads: a side panel on the left when
    // one is open, the markers beside the status, JUGAR, then what stands
    // under the phrase. Hidden controls are passed over.
    const std::array<QWidget*, 17> tabOrder{statsPanel,
                                            statsPanel->closeLabel(),
                                            historyPanel->list(),
                                            historyPanel->closeLabel(),
                                            themesPanel->list(),
                                            themesPanel->closeLabel(),
                                            autoMarker,
                                            soundButton,
                                            playPanel->playButton(),
                                            playPanel->restoreLabel(),
                                            smallPlayButton,
                                            strikes->correctionLabel(),
                                            lookUpLabel,
                                            answerPanel->answerBox(),
                                            answerPanel->okButton(),
                                            againLabels->getPointsLabel(),
                                            againLabels->restartLabel()};
    for (std::size_t i = 1; i < tabOrder.size(); ++i) {
        QWidget::setTabOrder(tabOrder[i - 1], tabOrder[i]);
    }
}

void BoardControls::paint() {
    const BoardAppearance& look = m_model.appearance();
    const LampColours lamp = look.lampColours(m_model.round().lamp());
    const Rgb score = m_model.round().deathColours() ? kRedLamp : lamp.light;
    const std::array<Rgb, 3> lampColours{lamp.light, lamp.dark, score};
    if (lampColours != m_lampColours) {
        m_lampColours = lampColours;
        statusLabel->setColours(qc(lamp.light), Qt::white);
        themeBox->setColours(qc(lamp.light), Qt::white);
        QPalette counter = counterLabel->palette();
        counter.setColor(QPalette::WindowText, qc(lamp.dark));
        counterLabel->setPalette(counter);
        strikes->paint(qc(lamp.light), qc(lamp.dark));
        scorePanel->paint(qc(score), qc(lamp.light));
    }
    const std::array<Rgb, 2> gameColours{look.gameColour(), look.background()};
    if (gameColours != m_gameColours) {
        m_gameColours = gameColours;
        paintGamePanels();
    }
}

void BoardControls::rescaled() {
    m_lampColours.reset();
    m_gameColours.reset();
    syncAll();
}

void BoardControls::paintGamePanels() {
    const BoardAppearance& look = m_model.appearance();
    const Rgb game = look.gameColour();
    const Rgb shade = look.shade();
    const TwipScale scale = TwipScale::of(m_board);
    // The window's ground, which also fills the screen round a board shown
    // full screen.
    QWidget* window = m_board->window();
    QPalette windowPalette = window->palette();
    windowPalette.setColor(QPalette::Window, qc(look.background()));
    window->setPalette(windowPalette);
    smallPlayButton->paint(css(game), css(kPictureButtonBack));
    playPanel->paint(QStringLiteral("QPushButton { background: %1; color: white; border: none;"
                                    " border-radius: %3px; }"
                                    "QPushButton:hover { background: %2; }"
                                    "QPushButton:pressed { background: %4; }")
                         .arg(css(game), css(shade))
                         .arg(scale.px(120))
                         .arg(css(kGreenLamp)),
                     QStringLiteral("QLabel { border: 1px dashed %1; border-radius: %2px; }")
                         .arg(css(kPictureButtonBack))
                         .arg(scale.pixels(8)));
    lookUpLabel->paint(css(shade));
    answerPanel->paint(css(game));
    againLabels->paint(css(game));
    sidePanel->paint(css(game));
    historyPanel->paint(css(game), css(shade));
    themesPanel->paint(css(game), css(shade));
    statsPanel->paint(css(game), css(shade));
    tipStrip->paint(qc(game));
}

void BoardControls::syncStatus() {
    const std::string& status = m_model.round().status();
    statusLabel->setText(qs(status));
    setSpokenName(statusLabel, qs(spokenStatus(status)));
}

void BoardControls::syncCounter() {
    const Round& round = m_model.round();
    counterLabel->setText(qs(round.board().counterText()));
    setSpokenName(counterLabel, qs(spokenCounter(round.board())));
    counterLabel->setVisible(round.counterVisible());
}

void BoardControls::sync(BoardAreas areas) {
    if (areas.isEverything()) {
        syncAll();
        return;
    }
    if (areas.has(BoardArea::Lamps)) {
        paint();
    }
    if (areas.has(BoardArea::Status)) {
        syncStatus();
    }
    if (areas.has(BoardArea::Cells)) {
        phrase->sync();
    }
    if (areas.has(BoardArea::Counter)) {
        syncCounter();
    }
    if (areas.has(BoardArea::Keys)) {
        keyboard->sync();
    }
    if (areas.has(BoardArea::Strikes)) {
        strikes->sync();
    }
    if (areas.has(BoardArea::Figure)) {
        gallows->sync();
    }
    if (areas.has(BoardArea::Turn)) {
        scorePanel->sync();
    }
}

void BoardControls::syncAll() {
    paint();
    syncStatus();
    themeBox->sync();
    syncCounter();
    timeLabel->sync();
    lookUpLabel->sync();
    strikes->sync();
    tipStrip->sync();
    playPanel->sync();
    answerPanel->sync();
    scorePanel->sync();
    sidePanel->sync();
    historyPanel->sync();
    themesPanel->sync();
    againLabels->sync();
    statsPanel->sync();
    smallPlayButton->sync();
    autoMarker->sync();
    soundButton->sync();
    background->sync();
    keyboard->setVisible(m_model.slide().shown());
    keyboard->sync();
    phrase->sync();
    gallows->sync();
    sessionPanel->sync();
}

} // namespace quillora
