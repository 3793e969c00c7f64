// Number and text rules of the system: rounding half to even on the double as it stands,
// 16-bit integers that overflow loudly, and "." as the only decimal separator whatever the
// machine's locale.
#pragma once

#include <QDate>
#include <QString>
#include <cstdint>

// Rounds to `decimales` places, ties to even, deciding the tie on the exact binary value:
// Round(2.675, 2) is 2.67 because 2.675 is stored a hair below the half.
double Round(double x, int decimales = 0);

// Conversions of a real to an integer round like Round; out of range is ErrorEjecucion.
int16_t CInt(double x);
int32_t CLng(double x);
float CSng(double x);

// Numeric prefix of a text: blanks skipped, "." as decimal point; "12abc" is 12, "abc" is 0,
// "4,5" is 4.
double Val(const QString& texto);

// A number typed by the operator, as it is stored: "," is read as the decimal point and the
// spaces around it are cut; a blank text is 0. A text that is no number is ErrorEjecucion.
double Numero_Digitado(const QString& texto);

// Numbers written the way the system writes them: "7", "4.2", "28.2"; a Single keeps 7
// significant digits ("0.1666667"), a Double 15.
QString CStr(double x);
QString CStr(float x);
QString CStr(int x);
QString CStr(int64_t x);

// Dates as "dd-mm-yyyy".
QString Fecha_Texto(const QDate& fecha);
