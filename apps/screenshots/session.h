// What an end user does to ask: "orders over 500 from customers in Berlin or Paris, this year, newest first".
#pragma once

#include <functional>
#include <string>

#include "apps/screenshots/hostwindow.h"

namespace tolvi {

/// Called at the stations of a session, while the lists and menus of the moment are open. The name says what is seen.
using TStationEvent = std::function<void(const std::string& name)>;

/// Plays the session on a window that is open and empty, with the shop's model: with keys only, or with the mouse, but
/// for the texts of values. Raises `EException` where what it looks for is not there. Stations are
///   by keys:   start, field, mistake, linkword, conditions, sorting, finished
///   by mouse:  menu, operator, rowmenu, drag, finished
void PlayByKeys(THostWindow& window, const TStationEvent& station);
void PlayByMouse(THostWindow& window, const TStationEvent& station);

/// The commands of the query panel with their keys, as a table of a page of documentation.
std::string CommandTable();

}  // namespace tolvi
