// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/frmQlvs/BoardPopup.h"

#include "models/frmQlvs/QlvsModel.h"

#include <QMenu>

namespace quillora {

QMenu* buildBoardPopup(QlvsModel& model, QWidget* board, const std::function<void()>& changed,
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
        "Nuevo partida", [&model] { model.eMenuNew(); }, round.newGameEnabled());
    menu->addSeparator();
    entry("Reiniciar", [&model] { model.eDReBoot(); });
    entry("Bloquear", [&model] { model.eBlueScreen(); });
    if (model.scoring().pointsCount()) {
        entry(settings.supervivencia ? "Modo normal" : "Modo supervivencia",
              [&model] { model.toggleSurvival(); });
        entry("Estadísticas", [&model] { model.eStat(); });
    }
    if (model.deleteShown()) {
        entry("Eliminar sesión", [&model] { model.deleteSession(); });
    }
    entry("Volver al menú", [&model] { model.eMenuBack(); });
    menu->addSeparator();
    check(entry("Mostrar sonidos", [&model] { model.toggleSounds(); }), settings.sonidos);
    check(entry("Frase automática", [&model] { model.eMenuAuto(); }), settings.fraseAutomatica);
    check(entry("Estado animado", [&model] { model.toggleAnimation(); }), settings.animacion);
    menu->addSeparator();
    entry("Editar jugadores", names);
    entry("Historial", [&model] { model.ePlayed(); });
    entry("Cambiar diseño", design, model.designOffered());
    menu->addSeparator();
    entry("Ayuda", [&model] { model.eHelp(); });
    entry("Acerca", [&model] { model.eAbout(); });
    menu->addSeparator();
    entry("Salir", quit);
    return menu;
}

} // namespace quillora
