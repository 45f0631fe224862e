// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

enum class ShaderFault {
    None,
    BrokenVertex, // its source does not compile
    BrokenFragment,
    RefusedVertex, // a program says that it has not taken it
    RefusedFragment,
};

// While one lives, the shaders that this program builds fail in one way; those that Qt builds itself
// do not. No driver that the tests meet does so: it stands between the client and Qt's library.
class FaultyShaders final
{
public:
    explicit FaultyShaders(ShaderFault fault);
    ~FaultyShaders();
    Q_DISABLE_COPY_MOVE(FaultyShaders)
};
