// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/options/RawLinesPage.h"

#include "look/Twips.h"
#include "platform/Fonts.h"
#include "storage/ConfigFile.h"
#include "windows/CurrentRowDelegate.h"
#include "windows/QtColour.h"
#include "windows/TypedTextFilter.h"

#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalBlocker>

namespace quillora {

namespace {

constexpr int kListHeight = 3315;
constexpr int kNamesWidth = 2700, kValuesLeft = 2790, kValuesWidth = 2355;
constexpr int kBoxTop = 3405, kBoxHeight = 360;

} // namespace

RawLinesPage::RawLinesPage(RawLinesModel& model, std::function<void()> changed, QWidget* parent)
    : QWidget(parent), m_model(model), m_changed(std::move(changed)) {
    const QFont font = Fonts::display(8, false);
    m_namesList = new QListWidget(this);
    m_namesList->setFont(font);
    m_namesList->setGeometry(px(0), px(0), px(kNamesWidth), px(kListHeight));
    m_namesList->setAccessibleName(QStringLiteral("Nombres"));
    for (int row = 0; row < RawLinesModel::kLines; ++row) {
        const std::string_view label = RawLinesModel::lineLabel(row);
        m_namesList->addItem(QString::fromUtf8(label.data(), static_cast<int>(label.size())));
    }
    m_valuesList = new QListWidget(this);
    m_valuesList->setFont(font);
    m_valuesList->setGeometry(px(kValuesLeft), px(0), px(kValuesWidth), px(kListHeight));
    m_valuesList->setAccessibleName(QStringLiteral("Valores"));
    for (int row = 0; row < RawLinesModel::kLines; ++row) {
        m_valuesList->addItem(QString());
    }
    for (QListWidget* list : {m_namesList, m_valuesList}) {
        CurrentRowDelegate::mark(list);
    }
    // The two lists read as one table: they scroll together.
    connect(m_namesList->verticalScrollBar(), &QScrollBar::valueChanged,
            m_valuesList->verticalScrollBar(), &QScrollBar::setValue);
    connect(m_valuesList->verticalScrollBar(), &QScrollBar::valueChanged,
            m_namesList->verticalScrollBar(), &QScrollBar::setValue);
    connect(m_namesList, &QListWidget::currentRowChanged, this, &RawLinesPage::select);
    connect(m_valuesList, &QListWidget::currentRowChanged, this, &RawLinesPage::select);

    m_valueBox = new QLineEdit(this);
    m_valueBox->setFont(font);
    m_valueBox->setGeometry(px(0), px(kBoxTop), px(kValuesLeft + kValuesWidth), px(kBoxHeight));
    m_valueBox->setToolTip(QStringLiteral(" 0 = Desactivado, 1 = Activado, 2 = Alterno "));
    m_valueBox->setAccessibleName(QStringLiteral("Valor"));
    new TypedTextFilter(m_valueBox, [](char32_t c, const QString&) { return storableInLine(c); });
    connect(m_valueBox, &QLineEdit::textEdited, this, [this](const QString& text) {
        m_model.setValueText(text.toStdString());
        m_changed();
    });
    sync();
}

void RawLinesPage::select(int row) {
    if (row >= 0 && row != m_model.selectedRow()) {
        m_model.selectRow(row);
        m_changed();
    }
}

void RawLinesPage::sync() {
    const auto& values = m_model.values();
    for (int row = 0; row < RawLinesModel::kLines; ++row) {
        QListWidgetItem* item = m_valuesList->item(row);
        const QString text = qs(values[static_cast<std::size_t>(row)]);
        if (item->text() != text) {
            item->setText(text);
        }
    }
    const int row = m_model.selectedRow();
    for (QListWidget* list : {m_namesList, m_valuesList}) {
        if (list->currentRow() != row) {
            const QSignalBlocker quiet(list);
            list->setCurrentRow(row);
        }
    }
    const QString text = qs(m_model.valueText());
    if (m_valueBox->text() != text) {
        m_valueBox->setText(text);
    }
    const Rgb game = m_model.gameColour();
    const QString style =
        QStringLiteral("QLineEdit { background: %1; color: white; border: none; border-radius: "
                       "%2px; padding-left: 3px; }")
            .arg(css(game))
            .arg(px(75));
    if (m_valueBox->styleSheet() != style) {
        m_valueBox->setStyleSheet(style);
    }
}

} // namespace quillora
