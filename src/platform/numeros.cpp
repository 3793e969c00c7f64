// Number and text rules of the system.
#include "platform/numeros.h"

#include <cmath>
#include <limits>

#include "platform/error_ejecucion.h"

namespace {

// Nearest integer to the exact product x * s (s a power of ten), ties to even. The product is
// kept as p + e, its rounded value and its exact error, so the tie is decided on the true value.
double Entero_Mas_Cercano(double x, double s) {
    const double p = x * s;
    const double e = std::fma(x, s, -p);
    const double f = std::floor(p);
    const double resto = (p - f) - 0.5;  // exact: p - f is in [0, 1)
    if (resto > -e) return f + 1;
    if (resto < -e) return f;
    return std::fmod(f, 2.0) == 0 ? f : f + 1;  // an exact half
}

double Redondeo_Entero(double x, double minimo, double maximo) {
    const double r = std::nearbyint(x);  // the default rounding mode is ties to even
    if (!(r >= minimo && r <= maximo)) throw ErrorEjecucion(QStringLiteral("Desbordamiento"));
    return r;
}

}  // namespace

double Round(double x, int decimales) {
    if (decimales <= 0 || !std::isfinite(x)) return std::nearbyint(x);
    const double s = std::pow(10.0, decimales);
    if (std::fabs(x * s) >= 4503599627370496.0) return x;  // 2^52: already a whole number
    return Entero_Mas_Cercano(x, s) / s;
}

int16_t CInt(double x) {
    return static_cast<int16_t>(Redondeo_Entero(x, -32768, 32767));
}

int32_t CLng(double x) {
    return static_cast<int32_t>(Redondeo_Entero(x, -2147483648.0, 2147483647.0));
}

float CSng(double x) {
    if (std::fabs(x) > std::numeric_limits<float>::max() && std::isfinite(x))
        throw ErrorEjecucion(QStringLiteral("Desbordamiento"));
    return static_cast<float>(x);
}

double Val(const QString& texto) {
    // Blanks are skipped anywhere in the number, as the system's conversion does.
    QString limpio;
    for (const QChar c : texto)
        if (c != QLatin1Char(' ') && c != QLatin1Char('\t') && c != QLatin1Char('\n') &&
            c != QLatin1Char('\r'))
            limpio += c;
    qsizetype i = 0;
    const auto es_digito = [&](qsizetype k) { return k < limpio.size() && limpio[k].isDigit(); };
    if (i < limpio.size() && (limpio[i] == QLatin1Char('-') || limpio[i] == QLatin1Char('+'))) ++i;
    while (es_digito(i)) ++i;
    if (i < limpio.size() && limpio[i] == QLatin1Char('.')) {
        ++i;
        while (es_digito(i)) ++i;
    }
    qsizetype fin = i;
    if (i < limpio.size() && QStringLiteral("eEdD").contains(limpio[i])) {
        qsizetype j = i + 1;
        if (j < limpio.size() && (limpio[j] == QLatin1Char('-') || limpio[j] == QLatin1Char('+')))
            ++j;
        if (es_digito(j)) {
            while (es_digito(j)) ++j;
            fin = j;
        }
    }
    QString numero = limpio.left(fin);
    numero.replace(QLatin1Char('d'), QLatin1Char('e')).replace(QLatin1Char('D'), QLatin1Char('e'));
    bool ok = false;
    const double v = numero.toDouble(&ok);  // QString::toDouble is always C locale
    return ok ? v : 0.0;
}

double Numero_Digitado(const QString& texto) {
    const QString numero = texto.trimmed().replace(QLatin1Char(','), QLatin1Char('.'));
    if (numero.isEmpty()) return 0;
    bool ok = false;
    const double v = numero.toDouble(&ok);
    if (!ok || !std::isfinite(v))
        throw ErrorEjecucion(QStringLiteral("El valor \"%1\" no es un número.").arg(texto));
    return v;
}

namespace {

// Significant-digit text with "E+15" style exponents and no trailing zeros.
QString Texto_Numero(double x, int digitos) {
    if (x == 0) return QStringLiteral("0");
    QString t = QString::number(x, 'g', digitos);
    const qsizetype e = t.indexOf(QLatin1Char('e'));
    if (e < 0) return t;
    QString mantisa = t.left(e);
    const int exponente = t.mid(e + 1).toInt();
    return mantisa + QLatin1Char('E') + (exponente < 0 ? QLatin1Char('-') : QLatin1Char('+')) +
           QStringLiteral("%1").arg(std::abs(exponente), 2, 10, QLatin1Char('0'));
}

}  // namespace

QString CStr(double x) {
    return Texto_Numero(x, 15);
}
QString CStr(float x) {
    return Texto_Numero(static_cast<double>(x), 7);
}
QString CStr(int x) {
    return QString::number(x);
}
QString CStr(int64_t x) {
    return QString::number(x);
}

QString Fecha_Texto(const QDate& fecha) {
    return fecha.toString(QStringLiteral("dd-MM-yyyy"));
}
