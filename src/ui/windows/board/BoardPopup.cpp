// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/BoardPopup.h"

#include "models/board/BoardModel.h"

#include <QMenu>

namespace quillora {

QMenu* buildBoardPopup(BoardModel& model, QWidget* board, const std::function<void()>& changed,
                       const std::function<void()>& names, const std::function<void()>& design,
                       const std::function<void()>& quit) {
    auto* menu = new QMenu(board);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const Round& round = model.round();
    const Settings& settings = model.shared().settings;
    auto entry = [&](const char* text, std::function<void()> action, bool enabled = true) {
        QAction* a = menu->addAction(QString::fromUtf8(text));
        a->setEnabled(enabled);
        if (action) {
            QObject::connect(a, &QAction::triggered, board, [action, changed] {
                action();
                changed();
            });
        }
        return a;
    };
    auto check = [](QAction* a, bool on) {
        a->setCheckable(true);
        a->setChecked(on);
    };
    entry(
        "Nuevo partida", [&model] { model.commands().clearBoard(); }, round.newGameEnabled());
    menu->addSeparator();
    entry("Reiniciar", [&model] { model.commands().restartNow(); });
    entry("Bloquear", [&model] { model.sessions().togglePanel(); });
    if (model.survival().entryShown()) {
        entry(settings.survival ? "Modo normal" : "Modo supervivencia",
              [&model] { model.survival().toggle(); });
        entry("Estadísticas", [&model] { model.panels().openStats(); });
    }
    if (model.sessions().deleteShown()) {
        entry("Eliminar sesión", [&model] { model.sessions().deleteCurrent(); });
    }
    entry("Volver al menú", [&model] { model.commands().backToMenu(); });
    menu->addSeparator();
    check(entry("Mostrar sonidos", [&model] { model.commands().toggleSounds(); }), settings.sounds);
    check(entry("Frase automática", [&model] { model.commands().toggleAutoPhrase(); }),
          settings.autoPhrase);
    check(entry("Estado animado", [&model] { model.commands().toggleAnimation(); }),
          settings.animated);
    menu->addSeparator();
    entry("Editar jugadores", names);
    entry("Historial", [&model] { model.panels().toggleHistory(); });
    entry("Cambiar diseño", design, model.designOffered());
    menu->addSeparator();
    entry("Ayuda", [&model] { model.lookUps().openHelp(); });
    entry("Acerca", [&model] { model.lookUps().showAbout(); });
    menu->addSeparator();
    entry("Salir", quit);
    return menu;
}

} // namespace quillora
