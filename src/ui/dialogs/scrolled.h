#pragma once

class QScrollArea;
class QWidget;

namespace tolvi {

/// The form in an area that scrolls where there is little room for it, as with large letters on a small screen. The
/// wheel scrolls; it changes what is chosen only in the box that has the focus. The form must have all its controls.
QScrollArea* Scrolled(QWidget* form, QWidget* parent);

}  // namespace tolvi
