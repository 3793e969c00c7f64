// Lets test failures print Qt texts as text.
#pragma once

#include <QString>
#include <QStringList>
#include <ostream>

inline void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }
inline void PrintTo(const QStringList& l, std::ostream* os) {
    *os << '{' << l.join(QStringLiteral(", ")).toStdString() << '}';
}
