// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/SessionPanelModel.h"

#include "state/SharedState.h"

namespace quillora {

SessionPanelModel::SessionPanelModel(SharedState& shared) : m_shared(shared) {}

bool SessionPanelModel::locked() const {
    return m_shared.locked;
}

void SessionPanelModel::openLocked() {
    m_shown = true;
    m_height = kOpenHeight;
    m_keyFrame = true;
    m_growing = m_shrinking = false;
}

void SessionPanelModel::toggleSessionPanel(int entries, bool playing) {
    if (m_shown && !m_shrinking) {
        close();
        return;
    }
    m_listHeight = kEntryHeight * entries;
    m_listTop = kListBase - m_listHeight;
    m_listShown = false;
    m_userBox = true;
    m_shown = true;
    m_height = kStartHeight;
    m_keyFrame = false;
    m_warning = playing;
    m_growing = true;
    m_shrinking = false;
}

void SessionPanelModel::close() {
    if (!m_shown) {
        return;
    }
    m_growing = false;
    m_shrinking = true;
    m_keyFrame = false;
}

void SessionPanelModel::tick() {
    if (m_growing) {
        m_height += kStep;
        if (m_height >= kOpenHeight) {
            m_growing = false;
            m_keyFrame = true;
        }
    } else if (m_shrinking) {
        m_height -= m_height <= kStep ? kLastStep : kStep;
        m_listTop = kListBase - m_listHeight;
        if (m_height <= kClosedHeight) {
            m_shrinking = false;
            m_shown = false;
            m_listShown = false;
            m_warning = false;
        }
    }
}

void SessionPanelModel::enterKey(const std::string& typed) {
    if (!m_shared.locked) {
        m_shared.key = typed;
        m_shared.locked = true;
        return;
    }
    if (typed == m_shared.key) {
        m_shared.locked = false;
        m_warning = false;
        close();
    } else {
        m_wrong = true;
    }
}

void SessionPanelModel::tickWrong() {
    m_wrong = false;
}

void SessionPanelModel::toggleList(int entries) {
    if (m_listShown) {
        m_listShown = false;
        m_listSliding = false;
        m_listTop = kListBase - m_listHeight;
        return;
    }
    m_listHeight = kEntryHeight * entries;
    m_listTop = kListBase - m_listHeight;
    m_listShown = true;
    m_listSliding = true;
}

void SessionPanelModel::tickList() {
    if (!m_listSliding) {
        return;
    }
    if (m_listTop <= 480) {
        m_listTop += 120;
    } else if (m_listTop < 540) {
        m_listTop += 60;
    } else {
        m_listSliding = false;
    }
}

void SessionPanelModel::hideListAndUserBox() {
    m_listShown = false;
    m_listSliding = false;
    m_userBox = false;
}

} // namespace quillora
