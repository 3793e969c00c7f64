// A graded test for the report tests and benchmarks.
#include "support/prueba_informes.h"

#include <QStringList>

#include "app/estado.h"
#include "platform/base_datos.h"

const char* const kEjesInforme[4] = {"álgebra", "Geometría", "datos", "Números"};
const char* const kHabilidadesInforme[3] = {"Aplicar", "Analizar", "Recordar"};

namespace {

BaseDatos& Base() {
    return *estado().BaseDatos;
}

// Axes, skills and the score tables are shared by all tests: written once.
void Crea_Listas() {
    Recordset rs = Base().OpenRecordset(QStringLiteral("select count(*) from objetivos"));
    if (rs[0].toInt() > 0) return;
    for (const char* e : kEjesInforme)
        Base().Execute(
            QStringLiteral(
                "insert into ejes (eje, TipoEnsayo, TipoPrueba) values (?, '', 'GENERAL')"),
            {QString::fromUtf8(e)});
    for (int h = 0; h < 3; ++h)
        Base().Execute(QStringLiteral("insert into objetivos values (?, ?, '', '')"),
                       {h + 1, QString::fromUtf8(kHabilidadesInforme[h])});
    Base().Execute(QStringLiteral("insert into puntajes_psu values (4, 150, 850)"));
}

}  // namespace

void Crea_Prueba_Informes(int id, const QString& curso, int alumnos, int preguntas, int formas) {
    Transaccion t(Base());
    Crea_Listas();
    Base().Execute(
        QStringLiteral("insert into prueba_rj values (?, 'Unidad 2', 'GENERAL', 'Ana Díaz', "
                       "'Matemática', ?, ?, '02-03-2026', ?, 0, 5, 'S', ?)"),
        {id, curso, formas, preguntas, formas});
    for (int f = 1; f <= formas; ++f)
        for (int p = 1; p <= preguntas; ++p)
            Base().Execute(QStringLiteral("insert into Resp_preguntas_pautas values (?, ?, ?, ?)"),
                           {id, p, f, (p + f) % 5 + 1});
    for (int p = 1; p <= preguntas; ++p)
        Base().Execute(
            QStringLiteral("insert into NEW_EJE_TEMATICO values ((select ifnull(max(correlativo), "
                           "0) + 1 from NEW_EJE_TEMATICO), ?, ?, ?, ?, 1, 'GENERAL')"),
            {id, p, QString::fromUtf8(kEjesInforme[p % 4]),
             QString::fromUtf8(kHabilidadesInforme[p % 3])});
    for (int a = 1; a <= alumnos; ++a) {
        const QString rut = QStringLiteral("%1-%2").arg(id * 1000 + a).arg(a % 10);
        const int forma = (a - 1) % formas + 1;
        Base().Execute(
            QStringLiteral("insert or ignore into ALUMNOS values (?, ?, ?, '')"),
            {rut, QStringLiteral("Alumno %1 %2").arg(curso).arg(a, 2, 10, QChar('0')), curso});
        int buenas = 0, omitidas = 0;
        QStringList filas;
        QVariantList valores;
        for (int p = 1; p <= preguntas; ++p) {
            // The better students answer more of the key; some leave questions out.
            const int correcta = (p + forma) % 5 + 1;
            const bool bien = (p * 7 + a * 3) % 10 < a % 10;
            const int alternativa = bien ? correcta : (p * a) % 6 + 1;
            buenas += alternativa == correcta;
            omitidas += alternativa == 6;
            filas << QStringLiteral("(?, ?, ?, ?, ?)");
            valores << id << p << forma << alternativa << rut;
        }
        // One statement a student: a store of many tests fills in seconds.
        Base().Execute(QStringLiteral("insert into respuesta_alumnos_por_rut values ") +
                           filas.join(QLatin1Char(',')),
                       valores);
        const int porcentaje = buenas * 100 / preguntas;
        Base().Execute(
            QStringLiteral(
                "insert into ResultadoAlumnos_rj values (?, ?, ?, ?, ?, 0, ?, ?, 0, ?, ?)"),
            {id, rut, buenas, preguntas - buenas - omitidas, omitidas, buenas,
             1 + 6.0 * buenas / preguntas, porcentaje, forma});
    }
    t.Confirma();
}
