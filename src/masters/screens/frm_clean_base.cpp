// Store reset and compaction.
#include "masters/screens/frm_clean_base.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <filesystem>

#include "app/estado.h"
#include "platform/screens/controles.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/error_ejecucion.h"
#include "platform/screens/navegacion.h"
#include "store/apertura_base.h"

namespace {

const QString kTitulo = QStringLiteral("Inicializa Base de Datos");

// Every test and result goes; test 1 stays in prueba_rj and the counter restarts at 1.
const char* const kBorrados[] = {
    "delete from NEW_EJE_TEMATICO",
    "delete from EjesPSU",
    "update Indice_General set valor_indice = 1  where tipo_indice = 'PRUEBA'",
    "delete from prueba_rj  where idprueba <> 1 ",
    "delete from Resp_preguntas_pautas ",
    "delete from respuesta_alumnos_por_rut ",
    "delete from ResultadoAlumnos_rj",
};

// The compact copy takes the old file's place in one step; a journal left beside the old file
// must not be applied to the new one.
void Reemplaza_Base(const QString& base, const QString& compacta) {
    for (const char* sufijo : {"-wal", "-shm"}) QFile::remove(base + QLatin1String(sufijo));
    std::error_code error;
    std::filesystem::rename(QFile::encodeName(compacta).toStdString(),
                            QFile::encodeName(base).toStdString(), error);
}

}  // namespace

FrmCleanBase::FrmCleanBase(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmCleanBase"));
    setWindowTitle(kTitulo);
    auto* aviso =
        new QLabel(QStringLiteral("Recuerde que al inicializar la Base de Datos, los datos "
                                  "que esta contiene son irrecuperable."),
                   this);
    aviso->setWordWrap(true);
    auto* capa = new QHBoxLayout(this);
    capa->addWidget(aviso, 1);
    capa->addLayout(
        Columna_Botones(this, {{"XPButAceptar", "Aceptar", [this] { XPButAceptar_Click(); }},
                               {"XPButCancelar", "Cancelar", [this] { close(); }}}));
    resize(460, 160);
}

void FrmCleanBase::XPButAceptar_Click() {
    if (dialogos().MsgBox(QStringLiteral("Esta seguro de Inicializar la base de datos"),
                          vbOKCancel + vbQuestion, kTitulo) != vbOK)
        return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    struct Puntero {
        ~Puntero() { QApplication::restoreOverrideCursor(); }
    } puntero;
    for (const char* sql : kBorrados) estado().BaseDatos->Execute(QString::fromUtf8(sql));
    const QString base = estado().BaseDatos->Ruta();
    const QString compacta = QFileInfo(base).dir().filePath(QStringLiteral("BaseNota_compac.db"));
    Cierra_Base();
    Compactar_Base(base, compacta);
    if (Compactada) Reemplaza_Base(base, compacta);
    // A store that can't be reopened leaves the handle closed: every later command says so.
    estado().BaseDatos = Abre_Base(base);
    Descarga_Pantalla(QStringLiteral("frmCorrecPru"));
    dialogos().MsgBox(QStringLiteral("La base ha sido inicializada"), vbOKOnly, kTitulo);
}

// A failure leaves the flag down and the old file standing, its rows already deleted.
void FrmCleanBase::Compactar_Base(const QString& origen, const QString& destino) {
    Compactada = false;
    try {
        BaseDatos::OpenDatabase(origen)->CompactDatabase(destino);
        Compactada = true;
    } catch (const ErrorEjecucion&) {
    }
}
