// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/SessionPanel.h"

#include "look/Twips.h"
#include "models/board/BoardAppearance.h"
#include "models/board/BoardSessions.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "storage/ConfigFile.h"
#include "windows/ButtonLike.h"
#include "windows/QtColour.h"
#include "windows/board/BoardAccessible.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QValidator>

namespace quillora {

namespace {

constexpr int kKeyFrameLeft = 3000, kKeyFrameTop = 1920, kKeyFrameWidth = 5745,
              kKeyFrameHeight = 1560;
const QString kWrongText = QStringLiteral("Incorrecto");

// The user's name goes into line 15 of a Windows-1252 file and, as typed,
// into the file's name: the box drops what the line cannot hold, whether it
// is typed, pasted, dropped or composed by an input method, so the two never
// disagree. The cursor stays after what was kept of the text before it.
class StorableNameValidator final : public QValidator {
public:
    using QValidator::QValidator;

    State validate(QString& input, int& pos) const override {
        const QString kept = qs(storableText(input.toStdString()));
        if (kept != input) {
            pos = static_cast<int>(qs(storableText(input.left(pos).toStdString())).size());
            input = kept;
        }
        return Acceptable;
    }
};

} // namespace

SessionPanel::SessionPanel(BoardSessions& sessions, const BoardAppearance& look,
                           std::function<void()> changed, QWidget* board)
    : QWidget(board), m_sessions(sessions), m_look(look), m_changed(std::move(changed)) {
    setAttribute(Qt::WA_StyledBackground);
    setObjectName(QStringLiteral("sessionFrame"));
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleRole(this, QAccessible::Grouping);
    setAccessibleName(QStringLiteral("Sesión"));

    m_userLabel = new QLabel(QStringLiteral(" Usuario"), this);
    placeInTwips(m_userLabel, QRect(240, 180, 5400, 420));
    setScaledFont(m_userLabel, Fonts::display(14));
    m_userLabel->setCursor(Qt::PointingHandCursor);
    m_userLabel->setContextMenuPolicy(Qt::CustomContextMenu);
    m_userLabel->installEventFilter(this);
    // The user's name is the label's text; a click opens the list of sessions.
    setAccessibleRole(m_userLabel, QAccessible::Button);
    m_userLabel->setAccessibleDescription(QStringLiteral("Usuario"));
    connect(m_userLabel, &QLabel::customContextMenuRequested, this,
            [this](const QPoint& at) { offerAdd(m_userLabel->mapToGlobal(at)); });
    // From the keyboard, Enter or Space on the label opens the list and
    // walks into it.
    new ButtonLike(
        m_userLabel,
        [this] {
            m_sessions.toggleList();
            m_changed();
            if (m_sessionsList->isVisible()) {
                if (!m_sessionsList->currentItem()) {
                    m_sessionsList->setCurrentRow(0);
                }
                m_sessionsList->setFocus();
            }
        },
        Qt::TabFocus);

    m_userBox = new QLineEdit(this);
    m_userBox->setPlaceholderText(QStringLiteral("Nombre"));
    m_userBox->setAccessibleName(QStringLiteral("Nombre"));
    m_userBox->setValidator(new StorableNameValidator(m_userBox));
    placeInTwips(m_userBox, QRect(5880, 180, 3240, 420));
    setScaledFont(m_userBox, Fonts::display(11));
    m_userBox->installEventFilter(this);

    m_sessionsList = new QListWidget(this);
    setScaledFont(m_sessionsList, Fonts::display(12));
    m_sessionsList->setFrameShape(QFrame::NoFrame);
    m_sessionsList->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_sessionsList->setAccessibleName(QStringLiteral("Sesiones"));
    connect(m_sessionsList, &QListWidget::itemClicked, this, &SessionPanel::switchTo);
    // The arrows walk the list; Enter or Space chooses. Only the keyboard
    // gives it the focus: after a click, what is typed still goes into the
    // key box.
    new ButtonLike(
        m_sessionsList, [this] { switchTo(m_sessionsList->currentItem()); }, Qt::TabFocus);

    m_keyFrame = new QWidget(this);
    placeInTwips(m_keyFrame, QRect(kKeyFrameLeft, kKeyFrameTop, kKeyFrameWidth, kKeyFrameHeight));
    m_keyLabel = new QLabel(m_keyFrame);
    placeInTwips(m_keyLabel, QRect(0, 0, kKeyFrameWidth, 480));
    m_keyLabel->setAlignment(Qt::AlignCenter);
    setScaledFont(m_keyLabel, Fonts::display(14));
    for (QLineEdit** box : {&m_keyBox, &m_key2Box}) {
        *box = new QLineEdit(m_keyFrame);
        placeInTwips(*box, QRect(480, 660, kKeyFrameWidth - 1680, 540));
        (*box)->setEchoMode(QLineEdit::Password);
        setScaledFont(*box, Fonts::display(14));
        (*box)->setAlignment(Qt::AlignCenter);
        (*box)->installEventFilter(this);
        (*box)->setAccessibleName(QStringLiteral("Clave"));
    }
    m_enterButton = new QPushButton(QStringLiteral(">"), m_keyFrame);
    placeInTwips(m_enterButton, QRect(kKeyFrameWidth - 1080, 660, 600, 540));
    setScaledFont(m_enterButton, Fonts::display(14));
    new ButtonLike(
        m_enterButton, [this] { enter(); }, Qt::TabFocus);
    m_enterButton->setAccessibleName(QStringLiteral("Entrar"));
    connect(m_enterButton, &QPushButton::clicked, this, &SessionPanel::enter);

    m_cancelLabel = new QLabel(QStringLiteral(" Cerrar "), this);
    setScaledFont(m_cancelLabel, Fonts::display(10));
    m_cancelLabel->setCursor(Qt::PointingHandCursor);
    m_cancelLabel->installEventFilter(this);
    setAccessibleRole(m_cancelLabel, QAccessible::Button);
    new ButtonLike(
        m_cancelLabel,
        [this] {
            m_sessions.panel().close();
            m_changed();
        },
        Qt::TabFocus);

    m_warningLabel = new QLabel(
        QStringLiteral("El progreso de la partida no se guarda, termine si piensa continuar."),
        this);
    m_warningLabel->setAlignment(Qt::AlignCenter);
    setScaledFont(m_warningLabel, Fonts::display(10));
    m_warningLabel->setWordWrap(true);

    hide();
}

void SessionPanel::offerAdd(QPoint at) {
    QMenu menu(this);
    QAction* add = menu.addAction(QStringLiteral("+ Agregar sesión"));
    if (menu.exec(at) == add) {
        addSession();
    }
}

void SessionPanel::addSession() {
    std::string shown;
    m_sessions.add(m_userBox->text().toStdString(), shown);
    m_userBox->setText(qs(shown));
    m_changed();
}

void SessionPanel::switchTo(QListWidgetItem* item) {
    if (item) {
        m_sessions.switchTo(item->data(Qt::UserRole).toInt());
        m_changed();
    }
}

QLineEdit* SessionPanel::activeKeyBox() const {
    return m_sessions.panel().secondBoxShown() ? m_key2Box : m_keyBox;
}

void SessionPanel::enter() {
    const SessionPanelModel& panel = m_sessions.panel();
    if (panel.wrongShown()) {
        return;
    }
    QLineEdit* box = activeKeyBox();
    m_sessions.keyEntered(box->text().toStdString());
    box->clear();
    if (m_sessions.panel().wrongShown()) {
        box->setEchoMode(QLineEdit::Normal);
        box->setStyleSheet(QStringLiteral("color: %1;").arg(css(kRedLamp)));
        box->setText(kWrongText);
        box->end(false);
        QTimer::singleShot(SessionPanelModel::kWrongMs, this, [this, box] {
            m_sessions.panel().tickWrong();
            box->clear();
            box->setStyleSheet(QString());
            box->setEchoMode(QLineEdit::Password);
        });
    }
    m_changed();
}

void SessionPanel::sync() {
    const SessionPanelModel& panel = m_sessions.panel();
    const TwipScale scale = TwipScale::of(this);
    placeInTwips(this, QRect(0, 0, kBoardWidthTwips, panel.height()));
    QWidget* focused = QApplication::focusWidget();
    const bool inside = focused && (focused == this || isAncestorOf(focused));
    const bool onKeyBox = focused && (focused == m_keyBox || focused == m_key2Box);
    const bool frameArrives = panel.keyFrameShown() && !m_keyFrame->isVisible();
    // A panel on its way up hands the keys back to the board, before its
    // controls go and Qt hands them to the board's next button.
    if (inside && (!panel.shown() || panel.closing())) {
        window()->setFocus();
    }
    setVisible(panel.shown());
    // A style sheet polishes every child again: applied only when the
    // colours change, not at every step of the board.
    const QString style =
        QStringLiteral(
            "#sessionFrame { background: %1; } QLabel { color: white; }"
            "QListWidget { background: %2; color: white; }"
            "QPushButton { background: %2; color: white; border: none; border-radius: %3px; }")
            .arg(css(m_look.gameColour()), css(m_look.shade()))
            .arg(scale.pixels(6)) +
        focusMarkStyle(QStringLiteral("QLineEdit")) +
        focusMarkStyle(QStringLiteral("QListWidget"), true) +
        focusMarkStyle(QStringLiteral("#sessionFrame"), true);
    if (style != m_style) {
        m_style = style;
        setStyleSheet(style);
    }
    if (!panel.shown()) {
        return;
    }
    raise();
    m_userLabel->setText(qs(m_sessions.displayName() + " "));
    m_userBox->setVisible(panel.userBoxShown());

    // Filled again only when the users changed: the list slides a step
    // every 10 ms.
    std::vector<Sessions::Entry> entries = m_sessions.entries();
    if (entries != m_entries || scale.factor() != m_entriesFactor) {
        m_entries = std::move(entries);
        m_entriesFactor = scale.factor();
        m_sessionsList->clear();
        for (const auto& entry : m_entries) {
            auto* item = new QListWidgetItem(qs(entry.name + " "), m_sessionsList);
            item->setData(Qt::UserRole, entry.slot);
            item->setSizeHint(QSize(scale.px(5400), scale.px(SessionPanelModel::kEntryHeight)));
        }
    }
    placeInTwips(m_sessionsList, QRect(240, panel.listTop(), 5400, panel.listHeight()));
    m_sessionsList->setVisible(panel.listShown());
    m_sessionsList->raise();

    m_keyFrame->setVisible(panel.keyFrameShown());
    m_keyLabel->setText(QString::fromUtf8(panel.keyCaption()));
    const QString keyStyle =
        panel.locked() ? QStringLiteral("color: rgb(190,190,190);") : QString();
    if (keyStyle != m_keyLabel->styleSheet()) {
        m_keyLabel->setStyleSheet(keyStyle);
    }
    m_keyBox->setVisible(!panel.secondBoxShown());
    m_key2Box->setVisible(panel.secondBoxShown());
    placeInTwips(m_cancelLabel, QRect(kBoardWidthTwips - 1440, 180, 1200, 420));
    m_cancelLabel->setVisible(panel.cancelShown());
    placeInTwips(m_warningLabel, QRect(1200, 3720, kBoardWidthTwips - 2400, 720));
    m_warningLabel->setVisible(panel.warningShown() && panel.keyFrameShown());
    // The key box takes the focus as the panel arrives, when it is locked or
    // unlocked, and whenever the focus is outside the panel; a control the
    // player went to with Tab keeps it.
    if (panel.keyFrameShown() && (frameArrives || onKeyBox || !inside)) {
        activeKeyBox()->setFocus();
    }
}

bool SessionPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_userLabel && event->type() == QEvent::MouseButtonPress &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        m_sessions.toggleList();
        m_changed();
        return true;
    }
    if (watched == m_cancelLabel && event->type() == QEvent::MouseButtonRelease) {
        m_sessions.panel().close();
        m_changed();
        return true;
    }
    if ((watched == m_userLabel || watched == m_userBox) && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        // The menu key, or Shift+F10, offers "+ Agregar sesión" as the right
        // button does; Enter in the name box adds the session at once.
        if (key->key() == Qt::Key_Menu ||
            (key->key() == Qt::Key_F10 && key->modifiers() == Qt::ShiftModifier)) {
            offerAdd(m_userLabel->mapToGlobal(m_userLabel->rect().center()));
            return true;
        }
        if (watched == m_userBox && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter)) {
            addSession();
            return true;
        }
    }
    if ((watched == m_keyBox || watched == m_key2Box) &&
        (event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress)) {
        if (event->type() == QEvent::KeyPress) {
            auto* key = static_cast<QKeyEvent*>(event);
            if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
                enter();
                return true;
            }
            if (key->key() == Qt::Key_F4) {
                return false; // the panel and the board deal with it
            }
            if (m_sessions.panel().wrongShown()) {
                return true;
            }
            // Tab and the like move on; only typing puts the list away.
            if (key->text().isEmpty() || !key->text().front().isPrint()) {
                return false;
            }
        }
        if (m_sessions.panel().listShown() || m_sessions.panel().userBoxShown()) {
            m_sessions.panel().hideListAndUserBox();
            m_changed();
        }
    }
    return QWidget::eventFilter(watched, event);
}

void SessionPanel::keyPressEvent(QKeyEvent* event) {
    // Esc closes the panel as F4 does, only while the session is unlocked.
    if (event->key() == Qt::Key_Escape && m_sessions.panel().f4Closes()) {
        m_sessions.panel().close();
        m_changed();
        return;
    }
    if (event->key() == Qt::Key_F4 || event->key() == Qt::Key_Escape) {
        event->ignore();
        return;
    }
    const QString text = event->text();
    if (!text.isEmpty() && text.front().isPrint() && m_sessions.panel().keyFrameShown()) {
        QLineEdit* box = activeKeyBox();
        box->setFocus();
        box->insert(text);
        m_sessions.panel().hideListAndUserBox();
        m_changed();
        return;
    }
    QWidget::keyPressEvent(event);
}

bool SessionPanel::focusNextPrevChild(bool next) {
    return tabWithin(next);
}

bool SessionPanel::tabWithin(bool next) {
    QList<QWidget*> stops;
    for (QWidget* stop :
         {static_cast<QWidget*>(m_userLabel), static_cast<QWidget*>(m_userBox),
          static_cast<QWidget*>(m_sessionsList), static_cast<QWidget*>(activeKeyBox()),
          static_cast<QWidget*>(m_enterButton), static_cast<QWidget*>(m_cancelLabel)}) {
        if (stop->isVisible()) {
            stops.append(stop);
        }
    }
    if (!isVisible() || stops.isEmpty()) {
        return QWidget::focusNextPrevChild(next);
    }
    const int at = static_cast<int>(stops.indexOf(QApplication::focusWidget()));
    const int count = static_cast<int>(stops.size());
    const int to = at < 0 ? 0 : (at + (next ? 1 : count - 1)) % count;
    stops[to]->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void SessionPanel::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    m_sessions.panel().hideListAndUserBox();
    m_changed();
}

} // namespace quillora
