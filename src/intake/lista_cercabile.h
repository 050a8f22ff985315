// Long lists in which a line is found by typing its beginning.
#pragma once

class QComboBox;

/// Lets the user type in the list's own box: the lines that begin so are offered. Leaving the box takes the one line
/// that fits, or puts back the one that stood: no text but a line's ever stays.
void rendi_cercabile(QComboBox* lista);
