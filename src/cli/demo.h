// `zorta demo`: a demonstration test with its students, keys and scanned sheets.
#pragma once

#include <QStringList>

int Cmd_Demo(const QStringList& args);
