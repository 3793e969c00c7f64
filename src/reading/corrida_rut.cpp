// The rut dialogue of a student sheet: an unread, malformed or unknown rut is resolved with
// the student list "Seleccione Rut Alumno", or the sheet is deleted at the operator's word.
#include "app/estado.h"
#include "platform/dialogos.h"
#include "reading/corrida_lectura.h"
#include "store/rut.h"

namespace {

void Aviso(const QString& texto, const QString& titulo) {
    dialogos().MsgBox(texto, vbOKOnly, titulo);
}

}  // namespace

CorridaLectura::Paso CorridaLectura::Dialogo_Rut() {
    if (c.TxtRut.trimmed().isEmpty()) {
        Aviso(QStringLiteral("El Rut no detectado, favor ingresar"), QStringLiteral("Valida Rut"));
        const QString rut = Pide_Rut();
        // A deleted sheet keeps its count; kept, it goes on with an empty rut.
        if (rut.isEmpty()) return Confirma_Eliminar() ? Paso::Siguiente : Paso::Sigue;
        c.TxtRut = rut;
    }
    for (;;) {
        Avisa();
        if (Fnc_Valida_Rut(c.TxtRut)) {
            if (!Alumno_Existe(c.TxtRut)) return Paso::Sigue;
            if (Rut_No_Existe()) return Paso::Siguiente;
            continue;
        }
        Aviso(QStringLiteral("Rut Incorrecto... ") + c.TxtRut + QStringLiteral(", ingrese Rut"),
              QStringLiteral("Valida Rut"));
        const QString rut = Pide_Rut();
        if (rut.isEmpty()) return Confirma_Eliminar() ? Paso::Siguiente : Paso::Sigue;
        c.TxtRut = rut;
    }
}

// A well-formed rut of no student: the list is opened until it gives a rut. True when the
// operator deletes the sheet instead; it then leaves the count.
bool CorridaLectura::Rut_No_Existe() {
    Aviso(QStringLiteral("El Rut no existe en base de datos, Verifique"),
          QStringLiteral("Verifica Nombre por Rut"));
    for (;;) {
        const QString rut = Pide_Rut();
        if (!rut.isEmpty()) {
            c.TxtRut = rut;
            return false;
        }
        if (Confirma_Eliminar()) {
            --Hojas_Corregidas;
            return true;
        }
        c.TxtRut = QLatin1String("");
        Avisa();
        Aviso(QStringLiteral("El valor del Rut esta en blanco..."),
              QStringLiteral("Ingrese Numero de Rut..."));
    }
}

QString CorridaLectura::Pide_Rut() {
    Rut_Manual = dialogos().Frm_SoloRrut(estado().Curso_Actual);
    return Rut_Manual;
}

bool CorridaLectura::Confirma_Eliminar() {
    return dialogos().MsgBox(QStringLiteral("Desea eliminar esta prueba"), vbOKCancel,
                             QStringLiteral("Correccion de prueba")) == vbOK;
}
