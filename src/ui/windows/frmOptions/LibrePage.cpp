// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/frmOptions/LibrePage.h"

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

LibrePage::LibrePage(OptionsModel& model, std::function<void()> changed, QWidget* parent)
    : QWidget(parent), m_model(model), m_changed(std::move(changed)) {
    const QFont font = Fonts::display(8, false);
    m_lstNames = new QListWidget(this);
    m_lstNames->setFont(font);
    m_lstNames->setGeometry(px(0), px(0), px(kNamesWidth), px(kListHeight));
    m_lstNames->setAccessibleName(QStringLiteral("Nombres"));
    for (int row = 0; row < OptionsModel::kLines; ++row) {
        const std::string_view label = OptionsModel::lineLabel(row);
        m_lstNames->addItem(QString::fromUtf8(label.data(), static_cast<int>(label.size())));
    }
    m_lstValues = new QListWidget(this);
    m_lstValues->setFont(font);
    m_lstValues->setGeometry(px(kValuesLeft), px(0), px(kValuesWidth), px(kListHeight));
    m_lstValues->setAccessibleName(QStringLiteral("Valores"));
    for (int row = 0; row < OptionsModel::kLines; ++row) {
        m_lstValues->addItem(QString());
    }
    for (QListWidget* list : {m_lstNames, m_lstValues}) {
        CurrentRowDelegate::mark(list);
    }
    // The two lists read as one table: they scroll together.
    connect(m_lstNames->verticalScrollBar(), &QScrollBar::valueChanged,
            m_lstValues->verticalScrollBar(), &QScrollBar::setValue);
    connect(m_lstValues->verticalScrollBar(), &QScrollBar::valueChanged,
            m_lstNames->verticalScrollBar(), &QScrollBar::setValue);
    connect(m_lstNames, &QListWidget::currentRowChanged, this, &LibrePage::select);
    connect(m_lstValues, &QListWidget::currentRowChanged, this, &LibrePage::select);

    m_txtValue = new QLineEdit(this);
    m_txtValue->setFont(font);
    m_txtValue->setGeometry(px(0), px(kBoxTop), px(kValuesLeft + kValuesWidth), px(kBoxHeight));
    m_txtValue->setToolTip(QStringLiteral(" 0 = Desactivado, 1 = Activado, 2 = Alterno "));
    m_txtValue->setAccessibleName(QStringLiteral("Valor"));
    new TypedTextFilter(m_txtValue, [](char32_t c, const QString&) { return storableInLine(c); });
    connect(m_txtValue, &QLineEdit::textEdited, this, [this](const QString& text) {
        m_model.setValueText(text.toStdString());
        m_changed();
    });
    sync();
}

void LibrePage::select(int row) {
    if (row >= 0 && row != m_model.selectedRow()) {
        m_model.selectRow(row);
        m_changed();
    }
}

void LibrePage::sync() {
    const auto& values = m_model.values();
    for (int row = 0; row < OptionsModel::kLines; ++row) {
        QListWidgetItem* item = m_lstValues->item(row);
        const QString text = qs(values[static_cast<std::size_t>(row)]);
        if (item->text() != text) {
            item->setText(text);
        }
    }
    const int row = m_model.selectedRow();
    for (QListWidget* list : {m_lstNames, m_lstValues}) {
        if (list->currentRow() != row) {
            const QSignalBlocker quiet(list);
            list->setCurrentRow(row);
        }
    }
    const QString text = qs(m_model.valueText());
    if (m_txtValue->text() != text) {
        m_txtValue->setText(text);
    }
    const Rgb game = m_model.gameColour();
    const QString style =
        QStringLiteral("QLineEdit { background: %1; color: white; border: none; border-radius: "
                       "%2px; padding-left: 3px; }")
            .arg(css(game))
            .arg(px(75));
    if (m_txtValue->styleSheet() != style) {
        m_txtValue->setStyleSheet(style);
    }
}

} // namespace quillora
