// Shared pieces of the amendment screens.
#include "grading/enmienda_notas.h"

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/numeros.h"

namespace {

const QString kLetrasAlumno = QStringLiteral("ABCDEON");

}  // namespace

QString Letra_Alumno(const QVariant& codigo) {
    const int c = static_cast<int>(Val(codigo.toString()));
    return c >= 1 && c <= 7 ? QString(kLetrasAlumno.at(c - 1)) : QString();
}

QString Letra_Pauta(const QVariant& codigo) {
    const int c = static_cast<int>(Val(codigo.toString()));
    if (c == 9) return QStringLiteral("X");
    return c >= 1 && c <= 5 ? QString(kLetrasAlumno.at(c - 1)) : QString();
}

QString Primer_Apellido(const QString& rut) {
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral("SELECT PRIMERAPELLIDO FROM ALUMNOS WHERE RUT = ?"), {rut});
    return rs.Eof() ? QString() : rs[0].toString();
}

void Elimina_Alumno_Prueba(const QString& rut, const QVariant& forma) {
    BaseDatos& base = *estado().BaseDatos;
    const int16_t id = estado().Id_Prueba_Actual;
    base.Execute(QStringLiteral("delete from respuesta_alumnos_por_rut where idprueba = ? and "
                                "rut_alumno = ? and forma  = ?"),
                 {id, rut, forma});
    base.Execute(QStringLiteral("delete from ResultadoAlumnos_rj where idprueba = ? and rut = ? "
                                "and forma  = ?"),
                 {id, rut, forma});
}

Grilla Tabla_Nota_Manual() {
    Grilla tabla(101, 2);
    for (int p = 0; p <= 100; ++p) {
        // In tenths of a grade, rounded half upward on whole numbers: no binary ties.
        const int decimas = p <= 60 ? 10 + (p + 1) / 2 : 40 + (3 * (p - 60) + 2) / 4;
        tabla.FijaCelda(p + 1, 1, CStr(p));
        tabla.FijaCelda(p + 1, 2, QStringLiteral("%1,%2").arg(decimas / 10).arg(decimas % 10));
    }
    return tabla;
}
