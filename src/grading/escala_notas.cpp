// The grade table of a test.
#include "grading/escala_notas.h"

#include <cmath>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/error_ejecucion.h"
#include "platform/numeros.h"

namespace {

constexpr int kPrimeraFila = 10;
constexpr int kFilas = 110;

// The table's cells hold text; numbers are read back the way the grid gives them.
double Num(const Grilla& g, int fila, int col) { return Val(g.Celda(fila, col)); }

int16_t Entero(const Grilla& g, int fila, int col) {
    const QString texto = g.Celda(fila, col).trimmed();
    if (texto.isEmpty()) throw ErrorEjecucion(QStringLiteral("No coinciden los tipos"));
    return CInt(Val(texto));
}

double Divide(double a, double b) {
    if (b == 0) throw ErrorEjecucion(QStringLiteral("División por cero"));
    return a / b;
}

}  // namespace

TablaNotas::TablaNotas() : Spr_Notas_Tabla(kFilas, 5) {
    Grilla& g = Spr_Notas_Tabla;
    g.FijaCelda(3, 2, QStringLiteral("1"));
    g.FijaCelda(4, 2, QStringLiteral("Nota Mínima"));
    g.FijaCelda(3, 5, QStringLiteral("40"));
    g.FijaCelda(4, 5, QStringLiteral("Puntaje de Corte"));
    g.FijaCelda(6, 2, QStringLiteral("100"));
    g.FijaCelda(7, 2, QStringLiteral("Ptje Max"));
    g.FijaCelda(6, 5, QStringLiteral("60"));
    g.FijaCelda(7, 5, QStringLiteral("% Dificul"));
    g.FijaCelda(9, 2, QStringLiteral("Ptos"));
    g.FijaCelda(9, 3, QStringLiteral("Bajo P. Corte"));
    g.FijaCelda(9, 4, QStringLiteral("Sobre P. Corte"));
    g.FijaCelda(9, 5, QStringLiteral("NOTA"));
    for (int puntos = 0; puntos <= 100; ++puntos) g.FijaCelda(kPrimeraFila + puntos, 2, CStr(puntos));
}

void Calcula_Notas_Tabla(TablaNotas& tabla, VarianteEscala variante, int16_t porcentaje) {
    Grilla& g = tabla.Spr_Notas_Tabla;
    for (int r = kPrimeraFila; r <= g.MaxRows(); ++r) g.FijaCelda(r, 5, QStringLiteral("0"));

    const Estado& e = estado();
    const int16_t p_usado = variante == VarianteEscala::Corrector    ? int16_t{60}
                            : variante == VarianteEscala::Correccion ? Fnc_Ajuste_Nota_40()
                                                                     : porcentaje;
    // The product is a 16-bit integer before the division.
    tabla.Txt_Corte = CStr(CInt(double(e.Ptje_Max_Actual) * p_usado) / 100.0);

    g.FijaCelda(3, 2, CStr(int(e.Nota_Minima_Actual)));
    g.FijaCelda(6, 2, CStr(int(e.Ptje_Max_Actual)));
    g.FijaCelda(3, 5, tabla.Txt_Corte);
    g.FijaCelda(6, 5, CStr(int(p_usado)));

    const int16_t nmin = Entero(g, 3, 2);
    const int16_t max = Entero(g, 6, 2);
    const double corte = Num(g, 3, 5);

    double m1 = Divide(4 - nmin, corte);
    if (variante == VarianteEscala::Evaluacion) m1 = Round(m1, 2);
    g.FijaCelda(7, 3, CStr(m1));
    m1 = Num(g, 7, 3);
    g.FijaCelda(7, 4, CStr(Round(Divide(3, max - corte), 3)));
    const double m2 = Round(Num(g, 7, 4), 3);

    // The amendment and evaluation variants count the cut as a whole score.
    const int16_t corte_entero = variante == VarianteEscala::Corrector ? 0 : CInt(corte);
    for (int r = kPrimeraFila; r <= kPrimeraFila + max; ++r) {
        const int16_t p = Entero(g, r, 2);
        double b = 0;
        double a = 0;
        if (variante == VarianteEscala::Corrector) {
            g.FijaCelda(r, 3, p > corte ? CStr(corte) : CStr(int(p)));
            const float b_simple = CSng(Num(g, r, 3));
            b = b_simple;
            g.FijaCelda(r, 4, CStr(static_cast<float>(p - b_simple)));
        } else {
            g.FijaCelda(r, 3, CStr(int(p > corte_entero ? corte_entero : p)));
            b = Entero(g, r, 3);
            g.FijaCelda(r, 4, CStr(int(CInt(p - b))));
        }
        a = Num(g, r, 4);
        const double primera = b * m1 + nmin;
        const double segunda = a * m2;
        if (primera + segunda > 7) {
            if (variante != VarianteEscala::Evaluacion) g.FijaCelda(r, 5, QStringLiteral("7"));
        } else if (variante == VarianteEscala::Corrector) {
            g.FijaCelda(r, 5, CStr(Round(Round(primera, 1) + Round(segunda, 1), 1)));
        } else {
            g.FijaCelda(r, 5, CStr(Round(primera + segunda, 1)));
        }
    }
}

std::optional<QString> Nota_De_Tabla(const TablaNotas& tabla, int buenas) {
    const Grilla& g = tabla.Spr_Notas_Tabla;
    for (int r = kPrimeraFila; r <= g.MaxRows(); ++r)
        if (Val(g.Celda(r, 2)) == buenas) return g.Celda(r, 5);
    return std::nullopt;
}

int16_t Fnc_Ajuste_Nota_40() {
    int16_t porcentaje = 60;
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral(" select desde from NivelesCalificacion where concepto = ?"),
        {QString::number(estado().Id_Prueba_Actual)});
    for (; !rs.Eof(); rs.MoveNext()) porcentaje = CInt(rs[0].toDouble());
    return porcentaje;
}
