// Scores of the practice runs of the national tests, and the students they are shown for.
#include "grading/puntajes_ensayo.h"

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/error_ejecucion.h"
#include "platform/grilla.h"
#include "platform/numeros.h"
#include "store/copias_prueba.h"

namespace {

void Sin_Cero(int16_t divisor) {
    if (divisor == 0) throw ErrorEjecucion(QStringLiteral("División por cero"));
}

// Round((tope / N) × b, 0) + base, the factor and the product as 32-bit floats.
double Linea_Psu(int tope, int16_t preguntas, int16_t buenas, int base) {
    const float factor = CSng(static_cast<double>(tope) / preguntas);
    const float producto = factor * static_cast<float>(buenas);
    return Round(producto, 0) + base;
}

// Cut points: "INICIAL" up to `inicial`, "INTERMEDIO" up to `intermedio`, "AVANZADO" above.
struct Cortes {
    int inicial;
    int intermedio;
};

constexpr Cortes kCortes232{232, 285};
constexpr Cortes kCortes240{240, 280};
constexpr Cortes kCortes245{245, 294};

Cortes Cortes_Octavo(const QString& asignatura) {
    const QString a = Sin_Espacios(asignatura).toUpper();
    if (a == QStringLiteral("EDUCACIÓN MATEMÁTICA")) return kCortes232;
    if (a == QStringLiteral("LENGUAJE Y COMUNICACIÓN")) return kCortes240;
    if (a == QStringLiteral("ESTUDIO Y COMPRENSIÓN DE LA NATURALEZA")) return {240, 283};
    return kCortes245;
}

Cortes Cortes_Simce(int16_t nivel_curso, const QString& asignatura) {
    switch (nivel_curso) {
        case 2:
            return asignatura == QStringLiteral("Matemática") ? kCortes232 : kCortes240;
        case 4:
            return asignatura == QStringLiteral("Lenguaje y Comunicación") ? kCortes232
                                                                           : kCortes245;
        case 8:
            return Cortes_Octavo(asignatura);
        default:
            return kCortes232;
    }
}

}  // namespace

QString Sin_Espacios(const QString& texto) {
    int desde = 0;
    int hasta = texto.size();
    while (desde < hasta && texto[desde] == QLatin1Char(' ')) ++desde;
    while (hasta > desde && texto[hasta - 1] == QLatin1Char(' ')) --hasta;
    return texto.mid(desde, hasta - desde);
}

NivelesPsu Calcula_Niveles_Psu(int16_t buenas, int16_t preguntas) {
    Sin_Cero(preguntas);
    return {Linea_Psu(700, preguntas, buenas, 150), Linea_Psu(600, preguntas, buenas, 250),
            Linea_Psu(500, preguntas, buenas, 350)};
}

const QStringList& Rangos_Psu() {
    static const QStringList rangos = {
        QStringLiteral("150 - 199"), QStringLiteral("200 - 249"), QStringLiteral(" 250 - 299"),
        QStringLiteral("300 - 349"), QStringLiteral("350 - 399"), QStringLiteral("400 - 449"),
        QStringLiteral("450 - 499"), QStringLiteral("500 - 549"), QStringLiteral("550 - 599"),
        QStringLiteral("600 - 649"), QStringLiteral("650 - 699"), QStringLiteral("700 - 749"),
        QStringLiteral("750 - 799"), QStringLiteral("800 - 849"), QStringLiteral(" 850 - 900")};
    return rangos;
}

int Banda_Psu(double puntaje) {
    if (puntaje < 150 || puntaje > 900) return 0;
    if (puntaje >= 850) return 15;
    return static_cast<int>((puntaje - 150) / 50) + 1;
}

int16_t Puntaje_Normal_Simce(int16_t buenas, int16_t ptje_max) {
    if (buenas == 0) return 156;
    Sin_Cero(ptje_max);
    const float t = CSng(static_cast<double>(buenas) / ptje_max);
    const int16_t porcentaje = CInt(t * 100.0f);
    return CInt(CInt(porcentaje * 2.05) + 156);
}

int16_t Puntaje_Simce(int16_t buenas, int16_t ptje_max) {
    Sin_Cero(ptje_max);
    return CInt(Round(static_cast<double>(buenas) / ptje_max * 100 * 2.05, 0) + 145);
}

int16_t Nivel_Curso(const QString& curso) {
    return CInt(Val(curso.left(1)));
}

QString Nivel_Simce(int16_t nivel_curso, const QString& asignatura, int16_t x) {
    const Cortes c = Cortes_Simce(nivel_curso, asignatura);
    if (x <= c.inicial) return QStringLiteral("INICIAL");
    if (x <= c.intermedio) return QStringLiteral("INTERMEDIO");
    return QStringLiteral("AVANZADO");
}

void Carga_Todos_Rut_Prueba(Grilla& grilla) {
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral(" SELECT rut  From ResultadoAlumnos_rj   Where idprueba = ? order by rut"),
        {estado().Id_Prueba_Actual});
    Grilla descarte(1, 9);  // the look-up writes into a grid of its own
    for (; !rs.Eof(); rs.MoveNext()) {
        const int fila = grilla.MaxRows() + 1;
        grilla.SetMaxRows(fila);
        const QString rut = rs[0].toString();
        grilla.FijaCelda(fila, 1, rut);
        grilla.FijaCelda(fila, 2, Fnc_Nombre_Alumno(rut, descarte));
    }
}
