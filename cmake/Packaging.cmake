# SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
# SPDX-License-Identifier: GPL-3.0-or-later

# The Debian package, made by `cpack -G DEB` from the install rules.
# scripts/package.sh configures a build for it (prefix /usr, the program in
# /usr/games, Debian's hardening flags) and checks the result.
set(CPACK_PACKAGE_NAME quillora-vesta)
set(CPACK_PACKAGE_VENDOR "Ondrel Works")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Quillora Vesta developers <quillora-vesta@ondrelworks.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "hangman game in Spanish, alone or with friends")
# CPack puts the summary first and indents each line below it.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Guess the hidden phrase letter by letter before the figure on the gallows
is complete. Phrases come from fifty themes of twenty phrases each, or are
typed by a friend; up to nine players take turns.
.
The game keeps points, has a survival mode and a countdown mode, keeps
statistics for up to four users, looks played phrases up on the web, and
can be played from the keyboard alone and with a screen reader.")
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${QUILLORA_HOMEPAGE})
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The sound decoder is opened while the board decodes its sounds, so no
# link names it for the dependencies worked out from the program.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libsndfile1 (>= 1.0.25)")
# Spanish buttons in the message boxes, and a browser for the help.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, xdg-utils")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB)
include(CPack)
