// The score table of a PSU or SIMCE definition.
#include "masters/screens/frm_puntajes_psu.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "app/estado.h"
#include "masters/carga_planilla.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"
#include "platform/planilla_lectura.h"
#include "platform/screens/controles.h"

namespace {

BaseDatos& Base() {
    return *estado().BaseDatos;
}
const QString kTituloCarga = QStringLiteral("Ingreso de Puntajes PSU");

QLineEdit* Solo_Lectura(QWidget* padre, const char* nombre) {
    QLineEdit* caja = Caja(padre, QString::fromUtf8(nombre));
    caja->setReadOnly(true);
    return caja;
}

}  // namespace

frmPuntajesPSU::frmPuntajesPSU(QWidget* padre) : QWidget(padre) {
    tipo_ = estado().Puntajes_PSU ? QStringLiteral("PSU") : QStringLiteral("SIMCE");
    setObjectName(QStringLiteral("frmPuntajesPSU"));
    setWindowTitle(QStringLiteral("Ingreso de Puntajes por Prueba ") + tipo_);
    CboPSU = new QComboBox(this);
    CboPSU->setObjectName(QStringLiteral("CboPSU"));
    TxtIdPSU = Solo_Lectura(this, "TxtIdPSU");
    TxtPuntajeMin = Solo_Lectura(this, "TxtPuntajeMin");
    TxtPuntajeMax = Solo_Lectura(this, "TxtPuntajeMax");
    TxtNumPreguntas = Solo_Lectura(this, "TxtNumPreguntas");
    Spr_PSU.FijaCelda(0, 1, QStringLiteral("Numero Prueba ") + tipo_);
    Spr_PSU.FijaCelda(0, 2, QStringLiteral("Puntaje Asignado Pregunta"));
    QTableView* vista = Vista_Grilla(this, QStringLiteral("Spr_PSU"), Spr_PSU, [](int) {});
    vista->setColumnWidth(0, 170);
    auto* datos = new QFormLayout;
    datos->addRow(QStringLiteral("Seleccione Nombre de Prueba ") + tipo_, CboPSU);
    datos->addRow(QStringLiteral("Código:"), TxtIdPSU);
    datos->addRow(QStringLiteral("Puntaje Mínimo:"), TxtPuntajeMin);
    datos->addRow(QStringLiteral("Puntaje Máximo:"), TxtPuntajeMax);
    datos->addRow(QStringLiteral("Numero de Preguntas:"), TxtNumPreguntas);
    auto* botones =
        Columna_Botones(this, {{"CmdViaFile", "Cargar Planilla", [this] { CmdViaFile_Click(); }},
                               {"XPButAceptar", "Grabar", [this] { XPButAceptar_Click(); }},
                               {"XPButCancelar", "Cancelar", [this] { close(); }}});
    datos->addRow(botones);
    auto* capa = new QHBoxLayout(this);
    capa->addLayout(datos);
    capa->addWidget(vista, 1);
    CmdViaFile = findChild<QPushButton*>(QStringLiteral("CmdViaFile"));
    XPButAceptar = findChild<QPushButton*>(QStringLiteral("XPButAceptar"));
    CmdViaFile->setEnabled(false);
    XPButAceptar->setEnabled(false);
    connect(CboPSU, &QComboBox::activated, this,
            [this] { Ejecutar_Comando([this] { CboPSU_Click(); }); });
    resize(760, 520);
    Recordset rs =
        Base().OpenRecordset(QStringLiteral(" SELECT id_psu,puntaje_min, puntaje_max, nombre_psu, "
                                            "numero_preguntas  From puntajes_psu_new "
                                            "where tipo_prueba = ?"),
                             {tipo_});
    SprBasePSU.SetMaxRows(rs.RecordCount());
    for (int fila = 1; !rs.Eof(); rs.MoveNext(), ++fila) {
        CboPSU->addItem(rs[3].toString());
        for (const auto& [col, campo] : {std::pair{1, 3}, {2, 0}, {3, 1}, {4, 2}, {5, 4}})
            SprBasePSU.FijaCelda(fila, col, rs[campo].toString());
    }
    CboPSU->setCurrentIndex(-1);
}

void frmPuntajesPSU::CboPSU_Click() {
    for (int f = 1; f <= SprBasePSU.MaxRows(); ++f)
        if (SprBasePSU.Celda(f, 1) == CboPSU->currentText()) {
            TxtIdPSU->setText(SprBasePSU.Celda(f, 2));
            TxtPuntajeMin->setText(SprBasePSU.Celda(f, 3));
            TxtPuntajeMax->setText(SprBasePSU.Celda(f, 4));
            TxtNumPreguntas->setText(SprBasePSU.Celda(f, 5));
        }
    CmdViaFile->setEnabled(true);
    Carga_Puntajes_Base();
}

void frmPuntajesPSU::Carga_Puntajes_Base() {
    Recordset rs = Base().OpenRecordset(
        QStringLiteral(" select * from Puntajes_PSU_DINAMICO  where id_psu =  ?"),
        {Val(TxtIdPSU->text())});
    Spr_PSU.SetMaxRows(rs.RecordCount());
    for (int fila = 1; !rs.Eof(); rs.MoveNext(), ++fila) {
        Spr_PSU.FijaCelda(fila, 1, rs[QStringLiteral("numero_pregunta")].toString());
        Spr_PSU.FijaCelda(fila, 2, rs[QStringLiteral("puntaje_obtenido")].toString());
    }
    if (Spr_PSU.MaxRows() == 0)
        dialogos().MsgBox(QStringLiteral("Esta prueba no cuenta con sus puntajes asociados..."),
                          vbInformation, windowTitle());
}

void frmPuntajesPSU::CmdViaFile_Click() {
    if (Spr_PSU.MaxRows() > 10 &&
        dialogos().MsgBox(
            QStringLiteral("La prueba ") + CboPSU->currentText() +
                QStringLiteral(" ya cuenta con los puntajes PSU  quiere cargarlos nuevamente.?") +
                QStringLiteral("  Recuerde que estos valores se perderan..."),
            vbOKCancel + vbQuestion, windowTitle()) != vbOK)
        return;
    const QString ruta =
        Elige_Planilla({.filtro = QStringLiteral(" *.xlsx|*.xlsx"),
                        .titulo = QStringLiteral("Mantenedor de Profesores"),
                        .sin_archivo = QStringLiteral("No se ha seleccionado ningún archivo"),
                        .sin_extension = QStringLiteral(
                            "El archivo seleccionado no es extensión *.XLS, verifique")});
    if (!ruta.isEmpty()) Carga_Masiva_Por_Archivo(ruta);
}

// Column B from row 1: the score of 0, 1, 2 right answers and so on, 200 rows at most; the
// load stops at the first empty cell. Column A is not read.
void frmPuntajesPSU::Carga_Masiva_Por_Archivo(const QString& ruta) {
    if (TxtIdPSU->text().isEmpty()) {
        dialogos().MsgBox(QStringLiteral("Debe seleccionar una prueba PSU"), vbCritical,
                          kTituloCarga);
        return;
    }
    Spr_PSU.SetMaxRows(0);
    const PlanillaLectura hoja = PlanillaLectura::Abre(ruta, 200);
    Spr_PSU.SetMaxRows(1);
    Spr_PSU.FijaCelda(1, 1, QStringLiteral("0"));
    Spr_PSU.FijaCelda(1, 2, QStringLiteral("150"));
    int r = 1;
    for (; r <= 200; ++r) {
        Spr_PSU.FijaCelda(r, 1, CStr(r - 1));
        const QString puntaje = hoja.Celda(r, QStringLiteral("B")).trimmed();
        if (puntaje.isEmpty()) break;
        Spr_PSU.FijaCelda(r, 2, puntaje);
        Spr_PSU.SetMaxRows(r + 1);
    }
    Spr_PSU.SetMaxRows(Spr_PSU.MaxRows() - 1);
    // The count told is the last row reached minus 2.
    dialogos().MsgBox(
        QStringLiteral("Se han cargado ") + CStr(r - 2) + QStringLiteral(" puntajes de PSU"),
        vbInformation, kTituloCarga);
    XPButAceptar->setEnabled(true);
}

// Refuses a table with exactly as many rows as questions; any other count passes.
bool frmPuntajesPSU::Fnc_Valida_Puntos_PSU() {
    if (Val(TxtNumPreguntas->text()) != Spr_PSU.MaxRows()) return true;
    dialogos().MsgBox(
        QStringLiteral(
            "El numero de fila cargadas en la grilla no es igual al Numero de Preguntas"),
        vbCritical, windowTitle());
    return false;
}

void frmPuntajesPSU::Insert_Puntajes_PSU() {
    Transaccion t(Base());
    for (int f = 1; f <= Spr_PSU.MaxRows(); ++f)
        Base().Execute(QStringLiteral(" insert into Puntajes_PSU_DINAMICO values (?, ?, ?, ?)"),
                       {Val(TxtIdPSU->text()), Val(Spr_PSU.Celda(f, 1)),
                        CboPSU->currentText().left(50), Val(Spr_PSU.Celda(f, 2))});
    t.Confirma();
}

void frmPuntajesPSU::XPButAceptar_Click() {
    if (!Fnc_Valida_Puntos_PSU()) return;
    Insert_Puntajes_PSU();
    dialogos().MsgBox(QStringLiteral("Proceso terminado con exito"), vbInformation, windowTitle());
    Spr_PSU.SetMaxRows(0);
    XPButAceptar->setEnabled(false);
    CmdViaFile->setEnabled(false);
    CboPSU->setCurrentIndex(-1);
}
