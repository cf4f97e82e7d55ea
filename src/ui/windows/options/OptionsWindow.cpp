// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/options/OptionsWindow.h"

#include "look/Twips.h"
#include "platform/Fonts.h"
#include "storage/ConfigFile.h"
#include "windows/CurrentRowDelegate.h"
#include "windows/EnterPresses.h"
#include "windows/FocusRing.h"
#include "windows/QtColour.h"
#include "windows/TypedTextFilter.h"
#include "windows/options/CheckPicture.h"
#include "windows/options/ColourEditor.h"
#include "windows/options/RawLinesPage.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTimer>

namespace quillora {

namespace {

using Field = OptionsModel::Field;
using Kind = OptionsModel::Kind;

// Where the window's controls sit, in twips.
constexpr int kMargin = 120;
constexpr int kListWidth = 1440, kListHeight = 2745;
constexpr int kButtonHeight = 480, kMenuTop = 2985, kSaveTop = 3555;
constexpr int kPageLeft = 1680, kPageWidth = 5145, kPageHeight = 3915;
constexpr int kRowPitch = 480, kRowHeight = 390;
constexpr int kEntryWidth = 3000, kVisualWidth = 2280;
constexpr int kGap = 60;
constexpr int kStyleCaptionWidth = 1560, kNumberWidth = 600;
constexpr int kColourCaptionWidth = 660, kColourFieldWidth = 1080, kEditorButtonWidth = 420;
constexpr int kThemeCaptionWidth = 1860;
constexpr int kEditorLeft = 2400, kEditorWidth = 2745, kEditorHeight = 2700;
constexpr int kRadius = 75;
constexpr double kEntryPoints = 8, kButtonPoints = 9;

QRect twipRect(int left, int top, int width, int height) {
    return QRect(px(left), px(top), px(width), px(height));
}

QString text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

bool isDigit(char32_t c) {
    return c >= U'0' && c <= U'9';
}

} // namespace

OptionsWindow::OptionsWindow(SharedState& shared, Dialogs& dialogs, Random& random, QWidget* parent)
    : QWidget(parent), m_model(shared, dialogs, random) {
    setWindowTitle(QStringLiteral("Configuración:"));
    setObjectName(QStringLiteral("OptionsWindow"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("#OptionsWindow { background: %1; }").arg(css(kNearWhite)));
    setFixedSize(px(OptionsModel::kWidthTwips), px(OptionsModel::kHeightTwips));

    m_pagesList = new QListWidget(this);
    m_pagesList->setGeometry(twipRect(kMargin, kMargin, kListWidth, kListHeight));
    m_pagesList->setFont(Fonts::display(9));
    m_pagesList->setAccessibleName(QStringLiteral("Páginas"));
    CurrentRowDelegate::mark(m_pagesList);
    for (int page = 0; page < OptionsModel::kPages; ++page) {
        auto* item = new QListWidgetItem(text(OptionsModel::pageName(static_cast<Page>(page))));
        item->setSizeHint(QSize(0, px(kRowHeight)));
        m_pagesList->addItem(item);
    }
    m_pagesList->installEventFilter(this);
    connect(m_pagesList, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0 && row < OptionsModel::kPages) {
            m_model.choosePage(static_cast<Page>(row));
            sync();
        }
    });

    buildPages();

    m_menuButton = new QPushButton(QStringLiteral(" &Menú"), this);
    m_menuButton->setFont(Fonts::display(kButtonPoints));
    m_menuButton->setGeometry(twipRect(kMargin, kMenuTop, kListWidth, kButtonHeight));
    connect(m_menuButton, &QPushButton::clicked, this, [this] {
        m_model.startMenu();
        sync();
    });
    m_saveButton = new QPushButton(QStringLiteral("G&uardar"), this);
    m_saveButton->setFont(Fonts::display(kButtonPoints));
    m_saveButton->setGeometry(twipRect(kMargin, kSaveTop, kListWidth, kButtonHeight));
    connect(m_saveButton, &QPushButton::clicked, this, [this] {
        m_model.save();
        sync();
    });

    m_outTimer = new QTimer(this);
    m_outTimer->setSingleShot(true);
    m_outTimer->setInterval(OptionsModel::kOutTickMs);
    connect(m_outTimer, &QTimer::timeout, this, [this] {
        if (m_model.tickOut()) {
            sync();
            if (onMenu) {
                onMenu();
            }
        }
    });

    m_model.open();
    sync();
    m_pagesList->setFocus();
    new FocusRing(this);
    new EnterPresses(this);
}

void OptionsWindow::keyPressEvent(QKeyEvent* event) {
    // Esc leaves as " &Menú" does, without saving.
    if (event->key() == Qt::Key_Escape) {
        m_model.startMenu();
        sync();
        return;
    }
    QWidget::keyPressEvent(event);
}

OptionsWindow::~OptionsWindow() = default;

void OptionsWindow::buildPages() {
    std::array<int, OptionsModel::kPages> rows{};
    for (int page = 0; page < OptionsModel::kPages; ++page) {
        auto* widget = new QWidget(this);
        widget->setGeometry(twipRect(kPageLeft, kMargin, kPageWidth, kPageHeight));
        m_pages[static_cast<std::size_t>(page)] = widget;
    }
    for (const OptionsModel::Entry& entry : OptionsModel::entries()) {
        const auto page = static_cast<std::size_t>(entry.page);
        buildEntry(entry, m_pages[page], rows[page]);
        // The button that opens the colours sits on the colour code's row.
        if (entry.kind != Kind::Button) {
            ++rows[page];
        }
    }

    QWidget* visual = page(Page::Visual);
    m_colourEditor = new ColourEditor(
        m_model.colourEditor(), [this] { sync(); }, visual);
    m_colourEditor->setGeometry(twipRect(kEditorLeft, 0, kEditorWidth, kEditorHeight));

    m_rawLinesPage = new RawLinesPage(
        m_model.rawLines(), [this] { sync(); }, page(Page::RawLines));
    m_rawLinesPage->setGeometry(twipRect(0, 0, kPageWidth, kPageHeight));
}

void OptionsWindow::buildEntry(const OptionsModel::Entry& entry, QWidget* page, int row) {
    const int top = row * kRowPitch;
    const int index = entry.index;
    const QString tooltip = text(entry.tooltip);
    const int width = entry.page == Page::Visual ? kVisualWidth : kEntryWidth;

    if (entry.kind == Kind::Check) {
        auto* check = new CheckPicture(text(entry.caption), page);
        check->setFont(Fonts::display(kEntryPoints));
        check->setGeometry(twipRect(0, top, width, kRowHeight));
        check->setToolTip(tooltip);
        connect(check, &CheckPicture::clicked, this, [this, index] {
            m_model.clickBox(index);
            sync();
        });
        m_checks[index] = check;
        return;
    }
    if (entry.kind == Kind::Button) {
        m_coloursButton = new QPushButton(page);
        m_coloursButton->setFont(Fonts::display(kEntryPoints));
        const int left = kColourCaptionWidth + kGap + kColourFieldWidth + kGap;
        m_coloursButton->setGeometry(
            twipRect(left, (row - 1) * kRowPitch, kEditorButtonWidth, kRowHeight));
        connect(m_coloursButton, &QPushButton::clicked, this, [this] {
            m_model.colourEditor().toggle();
            sync();
        });
        return;
    }

    auto* field = new QLineEdit(page);
    field->setFont(Fonts::display(kEntryPoints));
    field->setToolTip(tooltip);
    int captionWidth = 0;
    int fieldWidth = kNumberWidth;
    switch (index) {
    case OptionsModel::kStyleField:
        captionWidth = kStyleCaptionWidth;
        break;
    case OptionsModel::kThemeField:
        captionWidth = kThemeCaptionWidth;
        break;
    case OptionsModel::kColourField:
        captionWidth = kColourCaptionWidth;
        fieldWidth = kColourFieldWidth;
        break;
    default:
        fieldWidth = width;
        break;
    }
    if (captionWidth > 0) {
        auto* caption = new QLabel(text(entry.caption), page);
        caption->setFont(Fonts::display(kEntryPoints));
        caption->setGeometry(twipRect(0, top, captionWidth, kRowHeight));
        caption->setToolTip(tooltip);
        caption->setBuddy(field);
        field->setAccessibleName(caption->text().remove(QLatin1Char('&')).trimmed());
        m_captions[index] = caption;
        captionWidth += kGap;
    } else {
        field->setAccessibleName(QStringLiteral("Nombre"));
    }
    field->setGeometry(twipRect(captionWidth, top, fieldWidth, kRowHeight));

    // Number fields take digits, the colour code a minus in front as well;
    // the name only what a line of the file can hold.
    if (index == OptionsModel::kNameField) {
        new TypedTextFilter(field, [](char32_t c, const QString&) { return storableInLine(c); });
        field->installEventFilter(this);
    } else {
        const bool sign = index == OptionsModel::kColourField;
        new TypedTextFilter(field, [field, sign](char32_t c, const QString&) {
            return isDigit(c) || (sign && c == U'-' && field->cursorPosition() == 0);
        });
    }
    connect(field, &QLineEdit::textEdited, this,
            [this, index](const QString& typed) { fieldEdited(index, typed); });
    m_fields[index] = field;
}

void OptionsWindow::fieldEdited(int index, const QString& typed) {
    const std::string value = typed.toStdString();
    switch (index) {
    case OptionsModel::kStyleField:
        m_model.choices().setStyleText(value);
        break;
    case OptionsModel::kThemeField:
        m_model.choices().setThemeText(value);
        break;
    case OptionsModel::kNameField:
        m_model.choices().setNameText(value);
        break;
    case OptionsModel::kColourField:
        m_model.colourCode().setText(value);
        break;
    default:
        return;
    }
    sync();
    if (index == OptionsModel::kColourField) {
        field(index)->end(false);
    }
}

CheckPicture* OptionsWindow::checkBox(int index) const {
    const auto found = m_checks.find(index);
    return found != m_checks.end() ? found->second : nullptr;
}

QLineEdit* OptionsWindow::field(int index) const {
    const auto found = m_fields.find(index);
    return found != m_fields.end() ? found->second : nullptr;
}

void OptionsWindow::sync() {
    const Page shown = m_model.page();
    for (int p = 0; p < OptionsModel::kPages; ++p) {
        m_pages[static_cast<std::size_t>(p)]->setVisible(!m_model.pagesHidden() &&
                                                         static_cast<Page>(p) == shown);
    }
    if (m_pagesList->currentRow() != static_cast<int>(shown)) {
        const QSignalBlocker quiet(m_pagesList);
        m_pagesList->setCurrentRow(static_cast<int>(shown));
    }
    const OptionChoices& choices = m_model.choices();
    for (const auto& [index, check] : m_checks) {
        check->setTicked(choices.box(index));
    }
    const std::map<int, const std::string*> texts{
        {OptionsModel::kStyleField, &choices.styleText()},
        {OptionsModel::kThemeField, &choices.themeText()},
        {OptionsModel::kNameField, &choices.nameText()},
        {OptionsModel::kColourField, &m_model.colourCode().text()}};
    for (const auto& [index, value] : texts) {
        QLineEdit* box = field(index);
        if (box->text() != qs(*value)) {
            box->setText(qs(*value));
        }
    }
    const ColourEditorModel& editor = m_model.colourEditor();
    m_coloursButton->setText(text(editor.buttonCaption()));
    m_coloursButton->setToolTip(text(editor.buttonTooltip()));
    // "..." says nothing read aloud: the button is heard by what it does.
    m_coloursButton->setAccessibleName(
        m_coloursButton->toolTip().trimmed().remove(QLatin1Char('.')));
    m_colourEditor->setVisible(editor.isOpen());
    m_colourEditor->sync();
    m_rawLinesPage->sync();
    loadColor();

    if (m_model.outTimerRunning() && !m_outTimer->isActive()) {
        m_outTimer->start();
    }
}

// LoadColor: the fields, the captions and the command buttons wear the game
// colour; on "LIBRE!" the buttons warn in red that they write raw lines.
void OptionsWindow::loadColor() {
    const Rgb game = m_model.colourCode().gameColour();
    const Rgb command = m_model.commandColour();
    if (game != m_paintedGame) {
        m_paintedGame = game;
        const QString fieldStyle =
            QStringLiteral("QLineEdit { background: %1; color: white; border: none;"
                           " border-radius: %2px; padding-left: 3px;"
                           " selection-background-color: white; selection-color: %1; }")
                .arg(css(game))
                .arg(px(kRadius));
        for (const auto& [index, box] : m_fields) {
            box->setStyleSheet(fieldStyle);
        }
        const QString captionStyle =
            QStringLiteral("background: %1; color: white; border-radius: %2px;")
                .arg(css(game))
                .arg(px(kRadius));
        for (const auto& [index, caption] : m_captions) {
            caption->setStyleSheet(captionStyle);
        }
        for (const auto& [index, check] : m_checks) {
            check->setPanelColour(qc(game));
        }
        m_coloursButton->setStyleSheet(
            QStringLiteral("QPushButton { background: %1; color: white; border: none;"
                           " border-radius: %2px; }")
                .arg(css(game))
                .arg(px(kRadius)));
        m_pagesList->setStyleSheet(
            QStringLiteral("QListWidget::item:selected { background: %1; color: white; }")
                .arg(css(game)));
    }
    if (command != m_paintedCommand) {
        m_paintedCommand = command;
        const QString buttonStyle =
            QStringLiteral("QPushButton { background: %1; color: white; border: none;"
                           " border-radius: %2px; }"
                           " QPushButton:pressed { background: %3; }")
                .arg(css(command))
                .arg(px(kRadius))
                .arg(css(shadeOf(command)));
        m_menuButton->setStyleSheet(buttonStyle);
        m_saveButton->setStyleSheet(buttonStyle);
    }
}

void OptionsWindow::focusField(Field which) {
    QWidget* target = nullptr;
    switch (which) {
    case Field::Style:
        target = field(OptionsModel::kStyleField);
        break;
    case Field::Theme:
        target = field(OptionsModel::kThemeField);
        break;
    case Field::Name:
        target = field(OptionsModel::kNameField);
        break;
    case Field::ColourCode:
        target = field(OptionsModel::kColourField);
        break;
    case Field::Red:
        target = m_colourEditor->numberBox(ColourEditorModel::Channel::Red);
        break;
    case Field::Green:
        target = m_colourEditor->numberBox(ColourEditorModel::Channel::Green);
        break;
    case Field::Blue:
        target = m_colourEditor->numberBox(ColourEditorModel::Channel::Blue);
        break;
    case Field::Labels:
        target = m_rawLinesPage->labelList();
        break;
    case Field::Values:
        target = m_rawLinesPage->valueList();
        break;
    case Field::None:
        return;
    }
    target->setFocus(Qt::ShortcutFocusReason);
    if (auto* line = qobject_cast<QLineEdit*>(target)) {
        line->selectAll();
    } else if (auto* number = qobject_cast<QSpinBox*>(target)) {
        number->selectAll();
    }
}

void OptionsWindow::follow(const OptionsModel::KeyAction& action) {
    using Act = OptionsModel::KeyAction::Kind;
    if (action.openEditor) {
        m_model.colourEditor().open();
    }
    switch (action.kind) {
    case Act::Box:
        m_model.clickBox(action.box);
        break;
    case Act::Save:
        m_model.save();
        break;
    case Act::Menu:
        m_model.startMenu();
        break;
    case Act::DefaultBlue:
        m_model.colourEditor().useDefaultBlue();
        break;
    case Act::Focus:
    case Act::None:
        break;
    }
    sync();
    if (action.kind == Act::Focus) {
        focusField(action.field);
    }
}

bool OptionsWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_pagesList && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        const QString typed = key->text();
        // Arrows and the like move through the pages as in any list; what
        // is typed is the page's own keys and goes no further.
        if (typed.isEmpty() || typed.front() < QLatin1Char(' ') ||
            key->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) {
            return false;
        }
        follow(m_model.keyOnList(typed.toUcs4().value(0)));
        return true;
    }
    if (watched == field(OptionsModel::kNameField)) {
        if (event->type() == QEvent::FocusIn) {
            m_model.choices().nameEntered();
            sync();
        } else if (event->type() == QEvent::FocusOut) {
            m_model.choices().nameLeft();
            sync();
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace quillora
