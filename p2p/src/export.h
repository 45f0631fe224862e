// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// libAVAPIs calls into libIOTCAPIs, where the layer lives; all else stays inside the libraries.
#if defined(__GNUC__)
#define LINK_SHARED __attribute__((visibility("default")))
#else
#define LINK_SHARED
#endif
