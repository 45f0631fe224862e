// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The reversible wrapping of passwords, accounts and UIDs in the settings file and in some cloud
// fields: three layers of random salt and Base64, with salts of 3, 2 and 1 characters from the
// inside out. It has no key and hides a text only from a passing look; what counts is that
// each writing differs and that everyone who knows the three lengths can read it.
//
// Wrapping encodes UTF-8, unwrapping reads single bytes: a text outside ASCII does not come back
// unchanged. Files and servers hold texts made that way, so both directions stay as they are.

// Seeds rand() with the second of the clock for each salt, so two calls within one second can
// give the same result. Main thread.
QString scramble(const QString& text);

// Takes any text and never fails: what is no Base64, or too short for its salts, gives what is
// left of it, at worst an empty text. Any thread.
QString unscramble(const QString& scrambled);

// Whether the text has the form that scramble() gives: three layers of clean Base64, each with the
// same salt at both ends. Any thread.
bool isScrambled(const QString& text);
