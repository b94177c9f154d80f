// The editor of code, whose headers need two words of Qt that we do without.
#pragma once

#include <QObject>

#ifdef QT_NO_KEYWORDS
#define signals Q_SIGNALS
#define slots Q_SLOTS
#endif
#include <Qsci/qscicommandset.h>
#include <Qsci/qscilexersql.h>
#include <Qsci/qsciscintilla.h>
#ifdef QT_NO_KEYWORDS
#undef signals
#undef slots
#endif
