// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace quillora {

// While it lives, the disk refuses a file's bytes past the sixteenth, as a
// full disk would, whoever runs the test: the limit on a file's size holds
// for root as well.
class RefusedWrites {
public:
    RefusedWrites() {
        ::getrlimit(RLIMIT_FSIZE, &m_old);
        m_oldHandler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit small = m_old;
        small.rlim_cur = 16;
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~RefusedWrites() {
        ::setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_oldHandler);
    }
    RefusedWrites(const RefusedWrites&) = delete;
    RefusedWrites& operator=(const RefusedWrites&) = delete;

private:
    rlimit m_old{};
    void (*m_oldHandler)(int) = nullptr;
};

} // namespace quillora
