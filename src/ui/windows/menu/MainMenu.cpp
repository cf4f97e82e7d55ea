// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/menu/MainMenu.h"

#include "look/Twips.h"
#include "platform/Fonts.h"
#include "ports/Dialogs.h"
#include "windows/AccessibleControl.h"
#include "windows/ButtonLike.h"
#include "windows/FocusRing.h"
#include "windows/QtColour.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quillora {

namespace {

using Spot = MainMenuModel::Spot;

QRect twipRect(int left, int top, int width, int height) {
    return QRect(px(left), px(top), px(width), px(height));
}

// Where the menu's controls sit on its panel, in twips.
constexpr int kMargin = 240;
constexpr int kLegendTop = 180, kLegendHeight = 540;
constexpr int kRuleTop = 840, kRuleHeight = 30;
constexpr int kTileTop = 1020, kTileSize = 960, kTilePitch = 1080;
constexpr int kBoxWidth = 420, kBoxHeight = 540;
constexpr int kPlusSize = 330;
constexpr int kFooterTop = 2160;
constexpr int kLampDot = 150;

constexpr std::array<Spot, 4> kTileSpots{Spot::Solo, Spot::Friend, Spot::Several, Spot::Options};

std::size_t tileIndex(Spot spot) {
    return static_cast<std::size_t>(std::find(kTileSpots.begin(), kTileSpots.end(), spot) -
                                    kTileSpots.begin());
}

QRect tileRect(int index) {
    return twipRect(kMargin + kTilePitch * index, kTileTop, kTileSize, kTileSize);
}

// Light tiles (the yellow one) take dark ink, the others white.
QColor inkOn(Rgb back) {
    const int light = back.red * 299 + back.green * 587 + back.blue * 114;
    return light > 160000 ? QColor(70, 55, 0) : QColor(Qt::white);
}

// A plain widget that paints itself with the function it was given, so the
// tiles, the lock and the footer can read the model at every repaint.
class Painted final : public QWidget {
public:
    using Paint = std::function<void(QPainter&, const QRectF&)>;
    Painted(Paint paint, QWidget* parent) : QWidget(parent), m_paint(std::move(paint)) {}

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        m_paint(painter, QRectF(rect()));
    }

private:
    Paint m_paint;
};

// A tile: a rounded face with a darker lip below it, and a ring while the
// mouse is on it.
void paintTile(QPainter& p, const QRectF& r, Rgb colour, bool hovered) {
    const qreal radius = std::min(r.width(), r.height()) * 0.16;
    const qreal lip = r.height() * 0.06;
    p.setPen(Qt::NoPen);
    p.setBrush(qc(colour).darker(125));
    p.drawRoundedRect(r, radius, radius);
    const QRectF face = r.adjusted(0, 0, 0, -lip);
    QLinearGradient shine(face.topLeft(), face.bottomLeft());
    shine.setColorAt(0, qc(colour).lighter(112));
    shine.setColorAt(1, qc(colour));
    p.setBrush(shine);
    p.drawRoundedRect(face, radius, radius);
    if (hovered) {
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(QColor(255, 255, 255, 200), 2));
        p.drawRoundedRect(face.adjusted(2, 2, -2, -2), radius - 2, radius - 2);
    }
}

void paintDigit(QPainter& p, const QRectF& r, const QString& digit, Rgb back) {
    p.setFont(Fonts::display(30));
    p.setPen(inkOn(back));
    p.drawText(r.adjusted(0, 0, 0, -r.height() * 0.06), Qt::AlignCenter, digit);
}

void paintGear(QPainter& p, const QRectF& r, Rgb back) {
    constexpr int kTeeth = 8;
    const QPointF c = r.center() - QPointF(0, r.height() * 0.03);
    const qreal outer = r.width() * 0.30;
    const qreal inner = r.width() * 0.22;
    QPainterPath gear;
    for (int i = 0; i < kTeeth * 2; ++i) {
        // Each tooth is flat-topped: two points on the outer ring, two on the inner.
        const qreal from = (i - 0.5) * std::numbers::pi / kTeeth;
        const qreal to = (i + 0.5) * std::numbers::pi / kTeeth;
        const qreal rad = i % 2 == 0 ? outer : inner;
        const QPointF a = c + QPointF(std::cos(from + 0.12) * rad, std::sin(from + 0.12) * rad);
        const QPointF b = c + QPointF(std::cos(to - 0.12) * rad, std::sin(to - 0.12) * rad);
        if (i == 0) {
            gear.moveTo(a);
        } else {
            gear.lineTo(a);
        }
        gear.lineTo(b);
    }
    gear.closeSubpath();
    gear.addEllipse(c, r.width() * 0.09, r.width() * 0.09);
    gear.setFillRule(Qt::OddEvenFill);
    p.setPen(Qt::NoPen);
    p.setBrush(inkOn(back));
    p.drawPath(gear);
}

void paintPadlock(QPainter& p, const QRectF& r, Rgb back) {
    const qreal unit = std::min(r.width(), r.height());
    const QPointF c = r.center();
    const QRectF body(c.x() - unit * 0.24, c.y() - unit * 0.04, unit * 0.48, unit * 0.36);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(Qt::white, unit * 0.07, Qt::SolidLine, Qt::RoundCap));
    const QRectF shackle(c.x() - unit * 0.15, c.y() - unit * 0.32, unit * 0.30, unit * 0.40);
    p.drawArc(shackle, 0, 180 * 16);
    p.drawLine(QPointF(shackle.left(), shackle.center().y()), QPointF(shackle.left(), body.top()));
    p.drawLine(QPointF(shackle.right(), shackle.center().y()),
               QPointF(shackle.right(), body.top()));
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawRoundedRect(body, unit * 0.05, unit * 0.05);
    p.setBrush(qc(back));
    const QPointF hole = body.center() - QPointF(0, unit * 0.04);
    p.drawEllipse(hole, unit * 0.045, unit * 0.045);
    p.drawRect(QRectF(hole.x() - unit * 0.018, hole.y(), unit * 0.036, unit * 0.11));
}

} // namespace

MainMenu::MainMenu(SharedState& shared, Dialogs& dialogs, QWidget* parent)
    : QWidget(parent), m_model(shared, dialogs) {
    setWindowTitle(QString::fromUtf8(kAppTitle.data(), static_cast<int>(kAppTitle.size())));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAutoFillBackground(true);
    m_model.load();
    buildControls();
    buildKeys();

    m_legendTimer = new QTimer(this);
    m_legendTimer->setInterval(MainMenuModel::kLegendTickMs);
    connect(m_legendTimer, &QTimer::timeout, this, [this] {
        m_model.tickLegend();
        sync();
    });
    m_inTimer = new QTimer(this);
    m_inTimer->setInterval(MainMenuModel::kInTickMs);
    connect(m_inTimer, &QTimer::timeout, this, [this] {
        const MainMenuModel::Outcome outcome = m_model.tickIn();
        sync();
        follow(outcome);
    });

    sync();
}

MainMenu::~MainMenu() = default;

void MainMenu::buildControls() {
    // The mouse is read by the window alone, which asks the model what lies
    // under it; the controls only paint.
    m_content = new QWidget(this);
    m_content->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_content->setFixedSize(px(MainMenuModel::kWidthTwips), px(MainMenuModel::kHeightTwips));

    m_legendLabel = new QLabel(m_content);
    m_legendLabel->setAlignment(Qt::AlignCenter);
    m_legendLabel->setFont(Fonts::display(13));

    auto* rule = new Painted(
        [this](QPainter& p, const QRectF& r) { p.fillRect(r, qc(m_model.gameColour())); },
        m_content);
    AccessibleControl::hidden(rule);
    rule->setGeometry(
        twipRect(kMargin, kRuleTop, MainMenuModel::kWidthTwips - 2 * kMargin, kRuleHeight));

    for (std::size_t i = 0; i < kTileSpots.size(); ++i) {
        const Spot spot = kTileSpots[i];
        auto* tile = new Painted(
            [this, spot](QPainter& p, const QRectF& r) {
                const Rgb colour = m_model.tileColour(spot);
                paintTile(p, r, colour, m_model.hovered() == spot);
                if (spot == Spot::Solo) {
                    paintDigit(p, r, QStringLiteral("1"), colour);
                } else if (spot == Spot::Friend) {
                    paintDigit(p, r, QStringLiteral("2"), colour);
                } else if (spot == Spot::Options) {
                    paintGear(p, r, colour);
                }
            },
            m_content);
        tile->setGeometry(tileRect(static_cast<int>(i)));
        m_tiles[i] = tile;
    }

    const QRect several = tileRect(2);
    m_numberBox = new QLabel(m_content);
    m_numberBox->setAlignment(Qt::AlignCenter);
    m_numberBox->setFont(Fonts::display(20));
    m_numberBox->setGeometry(several.center().x() - px(kBoxWidth) / 2,
                             several.center().y() - px(kBoxHeight) / 2 - px(30), px(kBoxWidth),
                             px(kBoxHeight));

    m_plusLabel = new QLabel(QStringLiteral("+"), m_content);
    m_plusLabel->setAlignment(Qt::AlignCenter);
    m_plusLabel->setFont(Fonts::display(12));
    m_plusLabel->setGeometry(several.right() - px(kPlusSize) + px(90), several.top() - px(90),
                             px(kPlusSize), px(kPlusSize));

    auto* footer = new Painted(
        [this](QPainter& p, const QRectF& r) {
            p.fillRect(r, qc(m_model.gameColour()));
            const qreal dot = px(kLampDot);
            const std::array<Rgb, 3> colours{kRedLamp, kYellowLamp, kGreenLamp};
            p.setPen(QPen(qc(m_model.shade()), 1));
            for (std::size_t i = 0; i < colours.size(); ++i) {
                p.setBrush(qc(colours[i]));
                const qreal left = r.right() - px(kMargin) - (3 - i) * dot * 1.6;
                p.drawEllipse(QRectF(left, r.center().y() - dot / 2, dot, dot));
            }
        },
        m_content);
    AccessibleControl::hidden(footer);
    footer->setGeometry(twipRect(0, kFooterTop, MainMenuModel::kWidthTwips,
                                 MainMenuModel::kHeightTwips - kFooterTop));

    // The lock lies over the three tiles a locked session may not use.
    m_lockFrame = new Painted(
        [this](QPainter& p, const QRectF& r) {
            const Rgb colour = m_model.gameColour();
            paintTile(p, r, colour, m_model.hovered() == Spot::Lock);
            paintPadlock(p, r, colour);
        },
        m_content);
    m_lockFrame->setGeometry(
        tileRect(1).united(tileRect(3)).adjusted(-px(60), -px(60), px(60), px(60)));
}

void MainMenu::buildKeys() {
    const auto text = [](const std::string& utf8) { return QString::fromStdString(utf8); };
    for (std::size_t i = 0; i < kTileSpots.size(); ++i) {
        const Spot spot = kTileSpots[i];
        // The tiles take the focus from the keyboard only: the mouse is the
        // window's, and a click leaves no ring behind.
        new ButtonLike(
            m_tiles[i], [this, spot, text] { return text(m_model.legendOf(spot)); },
            [this, spot] {
                const MainMenuModel::Outcome outcome = m_model.choose(spot);
                sync();
                follow(outcome);
            },
            Qt::TabFocus);
        m_tiles[i]->installEventFilter(this);
    }
    m_tiles[tileIndex(Spot::Several)]->setAccessibleDescription(
        QStringLiteral("Escriba un número del 1 al 9 para jugar con esa cantidad de jugadores."));
    new ButtonLike(
        m_legendLabel, [this] { return m_legendLabel->text(); },
        [this] { follow(m_model.choose(Spot::Legend)); }, Qt::TabFocus);
    m_legendLabel->setAccessibleDescription(QStringLiteral("Acerca del juego"));
    m_legendLabel->installEventFilter(this);
    // The plus does what the third tile does; Tab stops once for both.
    new ButtonLike(
        m_plusLabel, [] { return QStringLiteral("+"); },
        [this] {
            const MainMenuModel::Outcome outcome = m_model.choose(Spot::Several);
            sync();
            follow(outcome);
        },
        Qt::NoFocus);
    m_plusLabel->setAccessibleDescription(text(m_model.legendOf(Spot::Several)));
    AccessibleControl::label(m_numberBox, [this] {
        return QStringLiteral("Número de jugadores: %1").arg(m_numberBox->text());
    });
    AccessibleControl::graphic(m_lockFrame,
                               [this, text] { return text(m_model.legendOf(Spot::Lock)); });
    for (std::size_t i = 1; i < m_tiles.size(); ++i) {
        setTabOrder(m_tiles[i - 1], m_tiles[i]);
    }
    setTabOrder(m_tiles.back(), m_legendLabel);
    new FocusRing(this);
}

QWidget* MainMenu::tile(Spot spot) const {
    const std::size_t index = tileIndex(spot);
    return index < m_tiles.size() ? m_tiles[index] : nullptr;
}

void MainMenu::sync() {
    const Rgb game = m_model.gameColour();
    QPalette windowPalette = palette();
    windowPalette.setColor(QPalette::Window, qc(kNearWhite));
    setPalette(windowPalette);

    m_legendLabel->setText(QString::fromStdString(m_model.legend()));
    m_legendLabel->setGeometry(
        twipRect(m_model.legendLeft(), kLegendTop, m_model.legendWidth(), kLegendHeight));
    m_legendLabel->setStyleSheet(
        QStringLiteral("background: %1; color: white; border-radius: %2px;")
            .arg(css(game))
            .arg(px(kLegendHeight) / 2));

    m_numberBox->setText(QString::fromStdString(m_model.numberText()));
    // A selected box shows its digit the way a selected text would.
    m_numberBox->setStyleSheet(
        m_model.numberSelected()
            ? QStringLiteral("background: %1; color: white; border: 2px solid white;"
                             " border-radius: 6px;")
                  .arg(css(m_model.shade()))
            : QStringLiteral("background: white; color: %1; border: 2px solid %1;"
                             " border-radius: 6px;")
                  .arg(css(m_model.shade())));
    m_plusLabel->setStyleSheet(
        QStringLiteral(
            "background: %1; color: white; border: 2px solid white; border-radius: %2px;")
            .arg(css(game))
            .arg(px(kPlusSize) / 2));

    m_lockFrame->setVisible(m_model.locked());
    // Under the lock only the first tile answers, the keys as well.
    for (std::size_t i = 0; i < kTileSpots.size(); ++i) {
        m_tiles[i]->setEnabled(!m_model.locked() || kTileSpots[i] == Spot::Solo);
    }
    m_content->update();

    const QRect wanted(px(m_model.windowLeft()), px(m_model.windowTop()), px(m_model.windowWidth()),
                       px(m_model.windowHeight()));
    if (size() != wanted.size()) {
        setFixedSize(wanted.size());
        if (isVisible()) {
            setGeometry(wanted);
        }
    }

    const auto follow = [](QTimer* timer, bool running) {
        if (running && !timer->isActive()) {
            timer->start();
        } else if (!running) {
            timer->stop();
        }
    };
    follow(m_legendTimer, m_model.legendTimerRunning());
    follow(m_inTimer, m_model.inTimerRunning());
}

QRect MainMenu::spotRect(Spot spot) const {
    QRect inContent;
    switch (spot) {
    case Spot::Solo:
    case Spot::Friend:
    case Spot::Several:
    case Spot::Options:
        inContent = m_tiles[tileIndex(spot)]->geometry();
        break;
    case Spot::Lock:
        inContent = m_lockFrame->geometry();
        break;
    case Spot::Legend:
        inContent = m_legendLabel->geometry();
        break;
    case Spot::Background:
        return QRect(0, 0, px(kMargin) / 2, px(kMargin) / 2);
    }
    return inContent.translated(m_content->pos());
}

Spot MainMenu::spotAt(QPoint pos) const {
    const QPoint at = pos - m_content->pos();
    if (m_lockFrame->isVisible() && m_lockFrame->geometry().contains(at)) {
        return Spot::Lock;
    }
    if (m_plusLabel->geometry().contains(at)) {
        return Spot::Several;
    }
    if (m_legendLabel->geometry().contains(at)) {
        return Spot::Legend;
    }
    for (std::size_t i = 0; i < kTileSpots.size(); ++i) {
        if (m_tiles[i]->geometry().contains(at)) {
            return kTileSpots[i];
        }
    }
    return Spot::Background;
}

void MainMenu::follow(MainMenuModel::Outcome outcome) {
    using Outcome = MainMenuModel::Outcome;
    const auto call = [](const std::function<void()>& callback) {
        if (callback) {
            callback();
        }
    };
    switch (outcome) {
    case Outcome::OpenBoard:
        hide();
        call(onPlay);
        break;
    case Outcome::Quit:
        hide();
        call(onQuit);
        break;
    case Outcome::OpenOptions:
        call(onOptions);
        break;
    case Outcome::About:
        m_model.showAbout();
        break;
    case Outcome::Stay:
        break;
    }
}

bool MainMenu::eventFilter(QObject* watched, QEvent* event) {
    // A tile reached by the keys lights up and names itself in the legend,
    // as under the mouse; the legend itself greets.
    if (event->type() == QEvent::FocusIn) {
        if (watched == m_legendLabel) {
            m_model.hover(Spot::Background);
            sync();
        }
        for (std::size_t i = 0; i < kTileSpots.size(); ++i) {
            if (watched == m_tiles[i]) {
                m_model.hover(kTileSpots[i]);
                sync();
            }
        }
    }
    return QWidget::eventFilter(watched, event);
}

void MainMenu::keyPressEvent(QKeyEvent* event) {
    // The arrows walk along the tiles as Tab does.
    if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right) {
        focusNextPrevChild(event->key() == Qt::Key_Right);
        event->accept();
        return;
    }
    using Key = MainMenuModel::Key;
    Key key = Key::Other;
    char32_t character = 0;
    if (event->key() == Qt::Key_Escape) {
        key = Key::Escape;
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        key = Key::Enter;
    } else if (!event->text().isEmpty()) {
        key = Key::Character;
        character = event->text().toUcs4().value(0);
    }
    // The menu takes every key; none goes on to a control.
    event->accept();
    const MainMenuModel::Outcome outcome = m_model.keyTyped(key, character);
    sync();
    follow(outcome);
}

void MainMenu::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() == Qt::NoButton) {
        m_model.hover(spotAt(event->position().toPoint()));
        sync();
    }
}

void MainMenu::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        m_model.press(spotAt(event->position().toPoint()));
        sync();
    }
}

void MainMenu::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    const MainMenuModel::Outcome outcome = m_model.release(spotAt(event->position().toPoint()));
    sync();
    follow(outcome);
}

void MainMenu::leaveEvent(QEvent*) {
    m_model.hover(Spot::Background);
    sync();
}

void MainMenu::moveEvent(QMoveEvent*) {
    // The window's own steps keep the model's twips; only a move from
    // outside (the caller placing the menu) is taken back.
    const QPoint at = geometry().topLeft();
    if (at != QPoint(px(m_model.windowLeft()), px(m_model.windowTop()))) {
        m_model.placeWindow(at.x() * kTwipsPerPixel, at.y() * kTwipsPerPixel);
    }
}

void MainMenu::takePlaceOf(QPoint at, int widthTwips, const QString& caption) {
    m_model.takeOptionsWidth(widthTwips);
    sync();
    setWindowTitle(caption);
    move(at);
}

void MainMenu::resizeEvent(QResizeEvent*) {
    // A window shorter than the panel keeps the panel's top: the legend and
    // the tiles stay whole, and only the strip at its foot is cut.
    const int spare = height() - m_content->height();
    m_content->move((width() - m_content->width()) / 2, spare >= 0 ? spare / 2 : 0);
}

void MainMenu::showEvent(QShowEvent* event) {
    // Each showing reads the session's colour and lock again.
    if (!event->spontaneous()) {
        m_model.load();
        const QPoint at = geometry().topLeft();
        m_model.placeWindow(at.x() * kTwipsPerPixel, at.y() * kTwipsPerPixel);
        sync();
        activateWindow();
        setFocus();
        // The import question waits for the menu to be on screen, so its box
        // stands over the menu rather than over nothing. A menu shown again
        // before the first wait is over still asks only once.
        if (!m_offerPending) {
            m_offerPending = true;
            QTimer::singleShot(0, this, [this] {
                m_offerPending = false;
                if (isVisible()) {
                    m_model.offerOldConfig();
                    sync();
                }
            });
        }
    }
}

} // namespace quillora
