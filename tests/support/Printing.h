#pragma once

#include <QString>

#include <ostream>

/// Lets GoogleTest print a text instead of its bytes. Found by argument-dependent lookup in the global
/// namespace.
inline void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray& bytes, std::ostream* stream)
{
    *stream << '"' << bytes.toPercentEncoding(" :,.\"[]{}()\n").toStdString() << '"';
}
