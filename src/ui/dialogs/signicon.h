// Small signs on buttons, drawn as lines in the colour of the button's text: sharp at every size.
#pragma once

#include <QIcon>
#include <cstdint>
class QAction;
class QToolButton;
class QWidget;

namespace tolvi {

enum TSign : std::uint8_t {
  sgForward,
  sgDelete,
  sgNew,
  sgPlus,
  sgMinus,
  sgTimes,
  sgDivided,
  sgNotSorted,
  sgAscending,
  sgDescending,
  sgUp,
  sgDown,
  sgUndo,
  sgRedo,
  sgFullScreen,
  sgRestore,
  sgNone,
};

/// The sign in the colours of `owner`, and mirrored with it; `owner` may go before the icon.
QIcon SignIcon(TSign sign, const QWidget& owner);

/// A flat button of the action, owned by `parent`, its sign as high as the text, whatever the size of letters becomes.
QToolButton* MakeSignButton(QAction& action, QWidget& parent);

}  // namespace tolvi
