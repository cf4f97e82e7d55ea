// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The yardstick of the key latency benchmark: the least a Qt Widgets program
// can do to show a typed key. The count beside the key changes the text on
// every press, so a key typed twice running still repaints.
#include <QApplication>
#include <QFont>
#include <QKeyEvent>
#include <QLabel>

namespace {

class EchoLabel : public QLabel {
public:
    EchoLabel() {
        setAlignment(Qt::AlignCenter);
        QFont big = font();
        big.setPointSize(48);
        big.setBold(true);
        setFont(big);
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        ++m_typed;
        setText(event->text().toUpper() + QStringLiteral(" ") + QString::number(m_typed));
    }

private:
    int m_typed = 0;
};

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    EchoLabel window;
    window.setWindowTitle(QStringLiteral("bare-echo"));
    window.resize(580, 264);
    window.show();
    return QApplication::exec();
}
