// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace quillora {

class Dialogs;
class Random;
struct SharedState;

// The four user slots: saving the live user into its slot, loading a slot,
// adding, switching and deleting. Every change of user ends with the board
// restarting for the new user, which the caller carries out when a method
// answers true.
class Sessions {
public:
    Sessions(SharedState& shared, Dialogs& dialogs, Random& random);

    // Slot 0 is the main session, with its file in the data folder.
    static void initialise(SharedState& shared);

    void saveCurrent();
    // Copies the current slot into the live values (what a switch of user does, less the
    // restart that follows it).
    void loadCurrent();

    // "+ Agregar sesión" with the name typed in the user box; `shownName`
    // receives the name the box shows afterwards. A name too long for a
    // file is refused; characters a configuration line cannot hold are
    // dropped from it. A user whose file is already in the data folder gets
    // that file, as it stands, and the player is told.
    bool add(const std::string& typedName, bool manyErrors, std::string& shownName);
    // Configuration files dropped on the board.
    bool addFromFiles(const std::vector<std::string>& paths, bool manyErrors);
    bool switchTo(int slot, bool manyErrors);
    bool deleteCurrent();

    // The display names of the slots in use, in slot order, with the slot
    // each belongs to.
    struct Entry {
        int slot;
        std::string name;
        bool operator==(const Entry&) const = default;
    };
    std::vector<Entry> entries() const;

private:
    int freeSlot() const;
    void fillNewSlot(const std::string& path, const std::string& name);

    SharedState& m_shared;
    Dialogs& m_dialogs;
    Random& m_random;
};

} // namespace quillora
