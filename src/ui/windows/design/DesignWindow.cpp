// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/design/DesignWindow.h"

#include "look/Twips.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "windows/AccessibleControl.h"
#include "windows/EnterPresses.h"
#include "windows/FocusRing.h"
#include "windows/QtColour.h"
#include "windows/design/DesignToggle.h"
#include "windows/design/FolderViews.h"
#include "windows/design/GoButton.h"
#include "windows/design/PreviewView.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTimer>

namespace quillora {

namespace {

// The window, in twips: the address across the top, then three columns:
// the folders over the pictures, the preview in the board's proportions over
// the style and "&Quitar fondo", the toggles over "Guardar y cerrar". It is
// wide and low, so above a board on a small screen it leaves the phrase in
// sight.
constexpr int kMargin = 120, kGap = 120;
constexpr int kRowHeight = 375;
constexpr int kGoWidth = 480;
constexpr int kTop = kMargin + kRowHeight + kGap;
constexpr int kListLeft = kMargin, kListWidth = 3000;
constexpr int kDirHeight = 1500, kListGap = 90, kFileHeight = 1800;
constexpr int kFileTop = kTop + kDirHeight + kListGap;
constexpr int kBottom = kFileTop + kFileHeight;
constexpr int kMiddleLeft = kListLeft + kListWidth + kGap, kMiddleWidth = 4500;
// The board's picture area is 11745 by 5340 twips: the preview keeps its shape.
constexpr int kPreviewHeight = kMiddleWidth * 5340 / 11745;
constexpr int kStyleTop = kTop + kPreviewHeight + kGap;
constexpr int kButtonTop = kStyleTop + kRowHeight + kGap;
constexpr int kButtonHeight = kBottom - kButtonTop;
constexpr int kRightLeft = kMiddleLeft + kMiddleWidth + kGap, kRightWidth = 2520;
constexpr int kToggleHeight = 540;
constexpr int kToggleGap = (kButtonTop - kGap - kTop - 4 * kToggleHeight) / 3;
constexpr int kWidth = kRightLeft + kRightWidth + kMargin;
constexpr int kHeight = kBottom + kMargin;

struct ToggleText {
    const char* caption;
    const char* tooltip;
};
// In the order of DesignModel::Toggle.
constexpr std::array<ToggleText, 4> kToggleTexts{{
    {"&Tamaño Real", " La imagen del fondo toma su tamaño real. "},
    {"Lineas &blancas", " Las lineas bajo las letras se hacen blancas. "},
    {"&Sombras opacas", " Las letras toman un fondo opaco. "},
    {"&Letras blancas", " Las letras se hacen blancas. "},
}};

// A pressed "&Quitar fondo" darkens as the red lamp's lines do.
constexpr Rgb kRedLampDark{194, 37, 37};

QString buttonSheet(Rgb face, Rgb pressed) {
    return QStringLiteral("QPushButton { background: %1; color: white; border: none;"
                          " border-radius: 6px; }"
                          "QPushButton:hover, QPushButton:focus { background: %2; }"
                          "QPushButton:pressed { background: %3; }")
        .arg(css(face), qc(face).darker(112).name(), css(pressed));
}

} // namespace

DesignWindow::DesignWindow(DesignedBoard& board, SharedState& shared, Dialogs& dialogs,
                           std::function<void()> boardChanged, const QString& pictures,
                           const QString& home, QWidget* parent)
    : QWidget(parent, Qt::Dialog), m_previewImage(new PreviewView(this)),
      m_model(board, shared, dialogs, *m_previewImage,
              userPictureFolder(pictures.toStdString(), home.toStdString()), home.toStdString()),
      m_boardChanged(std::move(boardChanged)) {
    setWindowTitle(QStringLiteral("Diseño:"));
    // The window's own colour through its palette: a style sheet here would
    // take over the lists' palettes, and File1 turns red through its own.
    QPalette background = palette();
    background.setColor(QPalette::Window, qc(kNearWhite));
    setPalette(background);
    setAutoFillBackground(true);
    fixSizeInTwips(this, kWidth, kHeight);
    buildControls();
    paintButtons();
    m_model.open();
    // Opening puts the list on the style in use, which may set its flags:
    // the board shows them at once.
    changed();
}

DesignWindow::~DesignWindow() = default;

QListView* DesignWindow::folderList() const {
    return m_lists->folderList();
}

QListView* DesignWindow::fileList() const {
    return m_lists->fileList();
}

void DesignWindow::buildControls() {
    const int addressWidth = kWidth - 2 * kMargin - kGoWidth - kGap / 2;
    m_addressBox = new QLineEdit(this);
    placeInTwips(m_addressBox, QRect(kMargin, kMargin, addressWidth, kRowHeight));
    m_addressBox->setToolTip(QStringLiteral(" Barra de dirección.  "));
    m_addressBox->setAccessibleName(QStringLiteral("Barra de dirección"));
    connect(m_addressBox, &QLineEdit::textEdited, this, [this](const QString& text) {
        m_model.typeAddress(text.toStdString());
        sync();
    });
    connect(m_addressBox, &QLineEdit::returnPressed, this, [this] {
        m_model.goToAddress();
        sync();
    });

    m_goButton = new GoButton(this);
    // A picture only: it is heard by what it does now.
    AccessibleControl::button(
        m_goButton, [this] { return m_goButton->toolTip().trimmed(); },
        [this] { m_goButton->click(); });
    placeInTwips(m_goButton, QRect(kWidth - kMargin - kGoWidth, kMargin, kGoWidth, kRowHeight));
    connect(m_goButton, &GoButton::clicked, this, [this] {
        m_model.goToAddress();
        sync();
    });

    m_lists = new FolderViews(
        this,
        [this](const QString& folder) {
            m_model.folderChanged(folder.toStdString());
            sync();
        },
        [this](const QString& name) {
            m_model.chooseFile(name.toStdString());
            changed();
        });
    placeInTwips(folderList(), QRect(kListLeft, kTop, kListWidth, kDirHeight));
    placeInTwips(fileList(), QRect(kListLeft, kFileTop, kListWidth, kFileHeight));

    placeInTwips(m_previewImage, QRect(kMiddleLeft, kTop, kMiddleWidth, kPreviewHeight));
    AccessibleControl::graphic(m_previewImage,
                               [] { return QStringLiteral("Vista previa del fondo"); });

    m_letterStyle = new QComboBox(this);
    placeInTwips(m_letterStyle, QRect(kMiddleLeft, kStyleTop, kMiddleWidth, kRowHeight));
    m_letterStyle->setToolTip(QStringLiteral(" Estilo de las letras.  "));
    m_letterStyle->setAccessibleName(QStringLiteral("Estilo de las letras"));
    for (const StyleItem& item : kStyleItems) {
        m_letterStyle->addItem(
            QString::fromUtf8(item.name.data(), static_cast<int>(item.name.size())));
    }
    connect(m_letterStyle, &QComboBox::activated, this, [this](int item) {
        m_model.chooseStyle(item);
        changed();
    });

    for (std::size_t i = 0; i < m_toggles.size(); ++i) {
        auto* toggle = new DesignToggle(QString::fromUtf8(kToggleTexts[i].caption),
                                        QString::fromUtf8(kToggleTexts[i].tooltip), this);
        placeInTwips(toggle,
                     QRect(kRightLeft, kTop + static_cast<int>(i) * (kToggleHeight + kToggleGap),
                           kRightWidth, kToggleHeight));
        const auto which = static_cast<DesignModel::Toggle>(i);
        connect(toggle, &DesignToggle::clicked, this, [this, which] {
            m_model.flip(which);
            changed();
        });
        m_toggles[i] = toggle;
    }

    m_removePictureButton = new QPushButton(QStringLiteral("&Quitar fondo"), this);
    m_removePictureButton->setToolTip(QStringLiteral(" Quitar fondo. "));
    placeInTwips(m_removePictureButton,
                 QRect(kMiddleLeft, kButtonTop, kMiddleWidth, kButtonHeight));
    connect(m_removePictureButton, &QPushButton::clicked, this, [this] {
        m_model.removePicture();
        changed();
    });

    m_okButton = new QPushButton(QStringLiteral("Guardar y cerrar"), this);
    placeInTwips(m_okButton, QRect(kRightLeft, kButtonTop, kRightWidth, kButtonHeight));
    connect(m_okButton, &QPushButton::clicked, this, [this] {
        if (m_model.save()) {
            close();
        } else {
            sync();
        }
    });

    new FocusRing(this);
    new EnterPresses(this);

    m_styleTimer = new QTimer(this);
    m_styleTimer->setInterval(DesignModel::kStyleTickMs);
    connect(m_styleTimer, &QTimer::timeout, this, [this] {
        m_model.tickStyle();
        m_boardChanged();
    });
}

void DesignWindow::paintButtons() {
    const Rgb game = m_model.buttonColour();
    m_okButton->setStyleSheet(buttonSheet(game, kGreenLamp));
    const Rgb red = m_model.removeColour();
    m_removePictureButton->setStyleSheet(buttonSheet(red, kRedLampDark));
    for (QPushButton* button : {m_okButton, m_removePictureButton}) {
        setScaledFont(button, Fonts::display(9));
        button->setCursor(Qt::PointingHandCursor);
    }
}

void DesignWindow::sync() {
    const QString address = qs(m_model.address());
    if (m_addressBox->text() != address) {
        m_addressBox->setText(address);
    }
    const Rgb game = m_model.buttonColour();
    m_goButton->setLook(m_model.goShown(), game);
    m_goButton->setToolTip(QString::fromUtf8(m_model.goTooltip()));
    m_lists->show(qs(m_model.listFolder()), m_model.listReads());
    m_lists->setRefused(m_model.listRefused());
    m_previewImage->follow(m_model.preview(), m_model.previewRealSize());
    m_letterStyle->setCurrentIndex(m_model.styleItem());
    for (std::size_t i = 0; i < m_toggles.size(); ++i) {
        const DesignModel::ToggleLook look = m_model.toggle(static_cast<DesignModel::Toggle>(i));
        m_toggles[i]->setLook(look.enabled, look.lit, game);
    }
    m_removePictureButton->setVisible(m_model.removeShown());
    const bool running = m_model.styleTimerRunning();
    if (running && !m_styleTimer->isActive()) {
        m_styleTimer->start();
    } else if (!running && m_styleTimer->isActive()) {
        m_styleTimer->stop();
    }
}

void DesignWindow::changed() {
    m_model.tickStyle();
    m_boardChanged();
    sync();
}

void DesignWindow::keyPressEvent(QKeyEvent* event) {
    // Esc is the close box: nothing is saved.
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

void DesignWindow::closeEvent(QCloseEvent* event) {
    m_model.close();
    m_boardChanged();
    event->accept();
}

} // namespace quillora
