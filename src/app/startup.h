// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// What an application object needs before the first window: fonts, the names that the settings
// file is found by, the style sheet. Called once, on the main thread, after the application
// object exists; nothing may touch the settings before it.
void prepareApplication();
