// The Spanish order of names.
#include "platform/orden_espanol.h"

namespace {

// The letter a character sorts with, and its accent: 0 plain, 1 and up accented.
struct Clave {
    char32_t letra;
    int acento;
};

Clave Clave_De(QChar c) {
    if (c.unicode() < 0x80) return {char32_t(QChar::toLower(c.unicode())) * 2, 0};
    const QChar minuscula = c.toLower();
    // "ñ" is a letter of its own, right after "n".
    if (minuscula == QChar(u'ñ')) return {char32_t(u'n') * 2 + 1, 0};
    const QString base = QString(minuscula).normalized(QString::NormalizationForm_D);
    if (base.size() > 1 && base[0].unicode() < 0x80)
        return {char32_t(base[0].unicode()) * 2, base[1].unicode()};
    return {char32_t(minuscula.unicode()) * 2, 0};
}

int Signo(long long d) {
    return d < 0 ? -1 : d > 0 ? 1 : 0;
}

int Compara_Nivel(const QString& a, const QString& b, int nivel) {
    const qsizetype n = std::min(a.size(), b.size());
    for (qsizetype i = 0; i < n; ++i) {
        const Clave x = Clave_De(a[i]);
        const Clave y = Clave_De(b[i]);
        long long d = 0;
        if (nivel == 0) d = static_cast<long long>(x.letra) - y.letra;
        if (nivel == 1) d = x.acento - y.acento;
        // Small letters before capitals.
        if (nivel == 2) d = static_cast<int>(a[i].isUpper()) - static_cast<int>(b[i].isUpper());
        if (d != 0) return Signo(d);
    }
    return nivel == 0 ? Signo(a.size() - b.size()) : 0;
}

}  // namespace

int Compara_Espanol(const QString& a, const QString& b) {
    for (int nivel = 0; nivel < 3; ++nivel)
        if (const int c = Compara_Nivel(a, b, nivel)) return c;
    return Signo(a.compare(b));
}
