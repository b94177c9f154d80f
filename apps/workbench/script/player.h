#pragma once

#include <QString>

namespace tolvi {

class TProgram;

/// Starts the program, plays the script with keys and clicks as a user makes them, writes the picture (without a
/// script, once the first rows are there; empty: none), and ends. Returns the exit status: 1 when a line of the script
/// fails, which is told on standard error as "FILE:LINE: why". Raises `EFileError` when the script cannot be read.
///
/// A script has one command a line; blank lines and those that begin with "#" are skipped. NAME is the object name of
/// a widget that can be seen. What is awaited may take ten seconds.
///
///   key KEYS [COUNT]      presses keys ("Ctrl+S", "Return"), as often as COUNT says
///   type TEXT             types the text
///   click NAME            clicks the middle of the widget
///   choose NAME           runs the command of a menu
///   focus NAME            puts the focus there
///   expect NAME TEXT      waits until the widget shows the text
///   expect-not NAME TEXT  waits until it does not
///   expect-window NAME    waits until a window of that name is open
///   expect-no-window NAME
///   expect-title TEXT     waits until that is the title of the main window; "*" at its end: something is not saved
///   clipboard TEXT        puts the text into the clipboard; \n is a line break
///   save-clipboard FILE   writes the text of the clipboard
///   resize WIDTH HEIGHT   gives the window that size
///   theme light|dark      dresses the windows
///   picture FILE          writes a picture of the windows that are open
///   pause MILLISECONDS
///   kill                  ends the program as a crash does
///   quit                  closes the main window
int PlayScript(TProgram& program, const QString& script, const QString& picture);

}  // namespace tolvi
