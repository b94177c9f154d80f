#pragma once

class QWidget;

namespace tolvi {

/// What the program is, its version, and under what licences it and the libraries in it come.
void ShowAbout(QWidget* parent);

}  // namespace tolvi
