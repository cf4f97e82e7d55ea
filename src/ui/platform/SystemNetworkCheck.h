// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ports/NetworkCheck.h"

namespace quillora {

// The system's own word on the network: NetworkManager's, asked on the
// system bus, where it runs and knows; otherwise any interface beside
// loopback that is up, running and has an address.
class SystemNetworkCheck final : public NetworkCheck {
public:
    bool networkAlive() override;
};

} // namespace quillora
