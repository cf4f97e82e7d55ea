// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/options/ColourEditor.h"

#include "look/Twips.h"
#include "platform/Fonts.h"
#include "windows/AccessibleControl.h"
#include "windows/QtColour.h"

#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>

namespace quillora {

namespace {

// Where the editor's controls sit, in twips.
constexpr int kRowTop = 60, kRowPitch = 435, kRowHeight = 345;
constexpr int kMarkLeft = 60, kMarkSize = 120;
constexpr int kLabelLeft = 225, kLabelWidth = 660;
constexpr int kSliderLeft = 930, kSliderWidth = 1140;
constexpr int kBoxLeft = 2130, kBoxWidth = 540;
constexpr int kCodeTop = kRowTop + 3 * kRowPitch, kCodeLeft = 930, kCodeWidth = 1740;
constexpr int kSwatchTop = kCodeTop + kRowPitch, kSwatchWidth = 1140;
constexpr int kApplyLeft = 2130, kApplyWidth = 540;
constexpr int kDefaultTop = kSwatchTop + kRowPitch + 60, kDefaultWidth = 2610;
constexpr int kRadiusTwips = 75;

// A patch of one colour with rounded corners.
class Swatch final : public QWidget {
public:
    explicit Swatch(QWidget* parent) : QWidget(parent) {}
    void setColour(const QColor& colour) {
        if (colour != m_colour) {
            m_colour = colour;
            update();
        }
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(QPen(QColor(90, 90, 90), 1));
        p.setBrush(m_colour);
        p.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), px(kRadiusTwips),
                          px(kRadiusTwips));
    }

private:
    QColor m_colour;
};

QRect twipRect(int left, int top, int width, int height) {
    return QRect(px(left), px(top), px(width), px(height));
}

QString labelStyle(Rgb back) {
    return QStringLiteral("background: %1; color: white; border-radius: %2px; padding-left: 2px;")
        .arg(css(back))
        .arg(px(kRadiusTwips));
}

} // namespace

ColourEditor::ColourEditor(ColourEditorModel& model, std::function<void()> changed, QWidget* parent)
    : QWidget(parent), m_model(model), m_changed(std::move(changed)) {
    const QFont font = Fonts::display(7.5);
    const std::array<const char*, 3> names{" Rojo ", " Verde ", " Azul "};
    for (const Channel channel : {Channel::Red, Channel::Green, Channel::Blue}) {
        const std::size_t i = index(channel);
        const int top = kRowTop + static_cast<int>(i) * kRowPitch;
        m_marks[i] = new Swatch(this);
        m_marks[i]->setGeometry(
            twipRect(kMarkLeft, top + (kRowHeight - kMarkSize) / 2, kMarkSize, kMarkSize));
        m_labels[i] = new QLabel(QString::fromUtf8(names[i]), this);
        const QString heard = m_labels[i]->text().trimmed();
        AccessibleControl::graphic(m_marks[i], [heard] { return heard; });
        m_labels[i]->setFont(font);
        m_labels[i]->setGeometry(twipRect(kLabelLeft, top, kLabelWidth, kRowHeight));

        auto* slider = new QSlider(Qt::Horizontal, this);
        slider->setRange(0, ColourEditorModel::kComponentMax);
        slider->setGeometry(twipRect(kSliderLeft, top, kSliderWidth, kRowHeight));
        slider->setAccessibleName(m_labels[i]->text().trimmed());
        connect(slider, &QSlider::valueChanged, this,
                [this, channel](int value) { setComponent(channel, value); });
        m_sliders[i] = slider;

        auto* box = new QSpinBox(this);
        // The slider beside it does the stepping.
        box->setButtonSymbols(QAbstractSpinBox::NoButtons);
        box->setFont(font);
        box->setRange(0, ColourEditorModel::kComponentMax);
        box->setGeometry(twipRect(kBoxLeft, top, kBoxWidth, kRowHeight));
        box->setAccessibleName(m_labels[i]->text().trimmed());
        connect(box, &QSpinBox::valueChanged, this,
                [this, channel](int value) { setComponent(channel, value); });
        m_boxes[i] = box;
    }

    m_labels[3] = new QLabel(QStringLiteral(" Código "), this);
    m_labels[3]->setFont(font);
    m_labels[3]->setGeometry(twipRect(kLabelLeft, kCodeTop, kLabelWidth, kRowHeight));
    m_codeBox = new QLineEdit(this);
    m_codeBox->setReadOnly(true);
    m_codeBox->setFont(font);
    m_codeBox->setGeometry(twipRect(kCodeLeft, kCodeTop, kCodeWidth, kRowHeight));
    m_codeBox->setAccessibleName(QStringLiteral("Código"));

    m_labels[4] = new QLabel(QStringLiteral(" Color:"), this);
    m_labels[4]->setFont(font);
    m_labels[4]->setGeometry(twipRect(kLabelLeft, kSwatchTop, kLabelWidth, kRowHeight));
    auto* swatch = new Swatch(this);
    swatch->setGeometry(twipRect(kCodeLeft, kSwatchTop, kSwatchWidth, kRowHeight));
    swatch->setToolTip(QStringLiteral(" Color que se usará. "));
    AccessibleControl::graphic(swatch, [] { return QStringLiteral("Color"); });
    m_colourSwatch = swatch;

    m_applyButton = new QPushButton(QStringLiteral("="), this);
    m_applyButton->setFont(font);
    m_applyButton->setGeometry(twipRect(kApplyLeft, kSwatchTop, kApplyWidth, kRowHeight));
    m_applyButton->setToolTip(QStringLiteral(" Aplicar color. "));
    m_applyButton->setAccessibleName(QStringLiteral("Aplicar color"));
    connect(m_applyButton, &QPushButton::clicked, this, [this] {
        m_model.applyCode();
        m_changed();
    });

    m_defaultButton = new QPushButton(QStringLiteral(" Usar el azul predeterminado."), this);
    m_defaultButton->setFont(font);
    m_defaultButton->setGeometry(twipRect(kMarkLeft, kDefaultTop, kDefaultWidth, kRowHeight));
    connect(m_defaultButton, &QPushButton::clicked, this, [this] {
        m_model.useDefaultBlue();
        m_changed();
    });
    sync();
}

void ColourEditor::setComponent(Channel channel, int value) {
    if (value == m_model.component(channel)) {
        return;
    }
    m_model.setComponent(channel, value);
    m_changed();
}

void ColourEditor::sync() {
    const std::array<Rgb, 3> marks{kRedLamp, kGreenLamp, m_model.defaultBlue()};
    for (const Channel channel : {Channel::Red, Channel::Green, Channel::Blue}) {
        const std::size_t i = index(channel);
        const int value = m_model.component(channel);
        if (m_sliders[i]->value() != value) {
            const QSignalBlocker quiet(m_sliders[i]);
            m_sliders[i]->setValue(value);
        }
        if (m_boxes[i]->value() != value) {
            const QSignalBlocker quiet(m_boxes[i]);
            m_boxes[i]->setValue(value);
        }
        static_cast<Swatch*>(m_marks[i])->setColour(qc(marks[i]));
    }
    const Rgb game = m_model.gameColour();
    const QString style = labelStyle(game);
    for (QLabel* label : m_labels) {
        if (label->styleSheet() != style) {
            label->setStyleSheet(style);
        }
    }
    const Rgb colour = m_model.colour();
    m_codeBox->setText(qs(m_model.codeText()));
    const QString codeStyle =
        QStringLiteral("background: %1; color: %2; border: 1px solid rgb(90,90,90);"
                       " border-radius: %3px;")
            .arg(css(colour))
            .arg(colour.red * 299 + colour.green * 587 + colour.blue * 114 > 150000
                     ? QStringLiteral("black")
                     : QStringLiteral("white"))
            .arg(px(kRadiusTwips));
    if (m_codeBox->styleSheet() != codeStyle) {
        m_codeBox->setStyleSheet(codeStyle);
    }
    static_cast<Swatch*>(m_colourSwatch)->setColour(qc(colour));
}

} // namespace quillora
