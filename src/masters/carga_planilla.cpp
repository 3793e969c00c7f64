// What every list load shares.
#include "masters/carga_planilla.h"

#include "app/estado.h"
#include "platform/dialogos.h"

namespace {

// A filter written "description|pattern|..." in the file dialog's own form, and every file
// besides, so that a name such as "lista.XLS.txt" can be chosen too.
QString Filtro_Dialogo(const QString& filtro) {
    const QStringList partes = filtro.split(u'|');
    QStringList filtros;
    for (qsizetype i = 0; i + 1 < partes.size(); i += 2)
        filtros << partes[i].trimmed() + QStringLiteral(" (") + partes[i + 1] + u')';
    filtros << QStringLiteral("Todos los archivos (*)");
    return filtros.join(QStringLiteral(";;"));
}

}  // namespace

QString Elige_Planilla(const EleccionPlanilla& eleccion) {
    const QString ruta = dialogos().AbrirArchivo(QStringLiteral("Seleccione un archivo"),
                                                 Filtro_Dialogo(eleccion.filtro));
    if (ruta.isEmpty()) {
        dialogos().MsgBox(eleccion.sin_archivo, vbInformation, eleccion.titulo_sin_archivo);
        return {};
    }
    if (!ruta.toUpper().contains(QLatin1String(".XLS"))) {
        dialogos().MsgBox(eleccion.sin_extension, vbCritical, eleccion.titulo);
        return {};
    }
    return ruta;
}

SegundaBase::SegundaBase() : base_(BaseDatos::OpenDatabase(estado().BaseDatos->Ruta())) {
    base_->BeginTrans();
}

SegundaBase::~SegundaBase() {
    try {
        base_->CommitTrans();
    } catch (...) {
        base_->Rollback();  // only when the file itself refuses; nothing more can be kept
    }
}

int Reemplaza_Con_Planilla(const QString& ruta, const QString& borra, int limite,
                           const InsertaFila& inserta) {
    SegundaBase base;
    base->Execute(borra);
    const PlanillaLectura hoja = PlanillaLectura::Abre(ruta, limite);
    int fila = 1;
    for (; fila <= limite && !hoja.Celda(fila, QStringLiteral("A")).isEmpty(); ++fila)
        inserta(*base, hoja, fila);
    return fila - 1;
}

QString Elige_Planilla_Xlsx(const QString& titulo) {
    return Elige_Planilla({.filtro = QStringLiteral(" *.xlsx|*.xlsx"),
                           .titulo = titulo,
                           .sin_archivo = QStringLiteral("No se ha seleccionado ningún archivo"),
                           .sin_extension = QStringLiteral(
                               "El archivo seleccionado no es extensión .XLSX, verifique")});
}
