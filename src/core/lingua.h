// The user's language: how numbers and dates are written, and the words of Qt's own dialogs.
#pragma once

/// Takes the system's locale, Italian where the system has none; Qt's own dialogs speak Italian.
void imposta_lingua();
