// The rut check.
#include "store/rut.h"

bool Fnc_Valida_Rut(const QString& rut) {
    const QString texto = rut.toUpper();
    const QString dv = texto.right(1);
    const qsizetype guion = texto.indexOf(QLatin1Char('-'));
    const QString cuerpo = guion < 0 ? QString() : texto.left(guion);
    int suma = 0;
    int factor = 2;
    // From the right; a character that is not a digit counts 0 but still uses its factor.
    for (qsizetype i = cuerpo.size() - 1; i >= 0; --i) {
        const QChar c = cuerpo[i];
        const int valor = (c >= QLatin1Char('0') && c <= QLatin1Char('9')) ? c.unicode() - '0' : 0;
        suma += valor * factor;
        factor = factor == 7 ? 2 : factor + 1;
    }
    const int r = 11 - suma % 11;
    const QString esperado = r == 10   ? QStringLiteral("K")
                             : r == 11 ? QStringLiteral("0")
                                       : QString::number(r);
    return esperado == dv;
}

QString Rut_Mayuscula(const QString& rut) {
    return rut.toUpper();
}

QString Rut_Con_Digito(qint64 cuerpo) {
    const QString digitos = QString::number(cuerpo);
    for (const QChar dv : QStringLiteral("0123456789K"))
        if (Fnc_Valida_Rut(digitos + QLatin1Char('-') + dv)) return digitos + QLatin1Char('-') + dv;
    return {};
}

int Filtra_Tecla_Rut(int codigo, bool* pita) {
    const bool pasa = codigo == '-' || codigo == 'k' || codigo == 'K' ||
                      (codigo >= '0' && codigo <= '9') || codigo == 8;
    if (pita) *pita = !pasa;
    return pasa ? codigo : 13;
}
