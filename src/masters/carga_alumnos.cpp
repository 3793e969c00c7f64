// The load of the student list.
#include "masters/carga_alumnos.h"

#include "masters/carga_planilla.h"
#include "platform/dialogos.h"
#include "store/rut.h"

namespace {

constexpr int kMaximoFilas = 10000;

void Rut_Incorrecto(int fila, const QString& rut) {
    dialogos().MsgBox(Lineas({QStringLiteral("Rut leido desde planilla no es correcto "),
                              QStringLiteral("Fila : ") + QString::number(fila),
                              QStringLiteral("Rut :") + Texto_Corto(rut)}),
                      vbCritical, QStringLiteral("Aceptar"));
}

// Courses get level 0 and a running number from 1, in the order of the query.
QStringList Rehace_Cursos(BaseDatos& base) {
    QStringList cursos;
    Recordset rs = base.OpenRecordset(QStringLiteral(" select distinct curso  From alumnos"));
    for (; !rs.Eof(); rs.MoveNext()) {
        cursos << rs[0].toString();
        base.Execute(QStringLiteral(" insert into cursos values (?, 0, ?)"),
                     {rs[0], static_cast<int>(cursos.size())});
    }
    return cursos;
}

}  // namespace

CargaAlumnos Carga_Alumnos_Planilla(const QString& ruta) {
    CargaAlumnos carga;
    SegundaBase base;
    base->Execute(QStringLiteral(" delete from ALUMNOS "));
    base->Execute(QStringLiteral(" delete from cursos "));
    const PlanillaLectura hoja = PlanillaLectura::Abre(ruta, kMaximoFilas);
    for (; carga.fila <= kMaximoFilas; ++carga.fila) {
        QString rut = hoja.Celda(carga.fila, QStringLiteral("A"));
        if (rut.trimmed().isEmpty()) break;
        rut.remove(u',');
        if (!Fnc_Valida_Rut(rut)) {
            Rut_Incorrecto(carga.fila, rut);
            base->Execute(QStringLiteral(" delete from ALUMNOS "));
            return carga;
        }
        const QString nombre = hoja.Celda(carga.fila, QStringLiteral("B")).remove(u'\'');
        base->Execute(QStringLiteral(" insert into ALUMNOS values (?, ?, ?, ?)"),
                      {Rut_Mayuscula(rut), nombre, hoja.Celda(carga.fila, QStringLiteral("C")),
                       hoja.Celda(carga.fila, QStringLiteral("D"))});
    }
    carga.cursos = Rehace_Cursos(*base);
    carga.completa = true;
    return carga;
}
