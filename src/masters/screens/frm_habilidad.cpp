// FrmHabilidad, "Mantenedor de Habilidades.".
#include "masters/screens/frm_habilidad.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>

#include "app/estado.h"
#include "masters/carga_planilla.h"
#include "platform/screens/controles.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "store/contadores.h"

namespace {

const QString kTitulo = QStringLiteral("Mantenedor de Habilidades");

BaseDatos& base() {
    return *estado().BaseDatos;
}

}  // namespace

FrmHabilidad::FrmHabilidad(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmHabilidad"));
    setWindowTitle(QStringLiteral("Mantenedor de Habilidades."));
    TxtConcepto = Caja(this, QStringLiteral("TxtConcepto"));
    TxtHabilidad = Caja(this, QStringLiteral("TxtHabilidad"));
    TxtCodigo = Caja(this, QStringLiteral("TxtCodigo"));
    SprObjetivos.FijaCelda(0, 1, QStringLiteral("Concepto"));
    SprObjetivos.FijaCelda(0, 2, QStringLiteral("Descripcion"));
    SprObjetivos.FijaCelda(0, 3, QStringLiteral("Código"));
    QTableView* vista = Vista_Grilla(this, QStringLiteral("SprObjetivos"), SprObjetivos,
                                     [this](int f) { SprObjetivos_Click(f); });
    vista->setColumnWidth(0, 200);
    vista->setColumnWidth(1, 330);
    vista->horizontalHeader()->setStretchLastSection(true);

    auto* capa = new QGridLayout(this);
    capa->addWidget(new QLabel(QStringLiteral("Concepto"), this), 0, 0);
    capa->addWidget(TxtConcepto, 0, 1);
    capa->addWidget(new QLabel(QStringLiteral("Definicion"), this), 1, 0);
    capa->addWidget(TxtHabilidad, 1, 1);
    capa->addWidget(new QLabel(QStringLiteral("Código"), this), 2, 0);
    capa->addWidget(TxtCodigo, 2, 1);
    capa->addWidget(vista, 3, 0, 1, 3);
    auto* botones =
        Columna_Botones(this, {{"XPButAceptar", "Aceptar", [this] { XPButAceptar_Click(); }},
                               {"XPButton1", "Eliminar", [this] { XPButton1_Click(); }},
                               {"CmdCarga", "Cargar Planilla", [this] { CmdCarga_Click(); }},
                               {"XPButCancelar", "Cancelar", [this] { close(); }}});
    capa->addLayout(botones, 0, 2, 3, 1);
    resize(700, 520);
    Limpia_Campos();
    Ejecutar_Comando([this] { Carga_Objetivos(); });
}

void FrmHabilidad::Carga_Objetivos() {
    Recordset rs = base().OpenRecordset(
        QStringLiteral("select concepto, descripcion, idobjetivo from objetivos"));
    SprObjetivos.SetMaxRows(rs.RecordCount());
    for (int fila = 1; !rs.Eof(); rs.MoveNext(), ++fila)
        for (int c = 0; c < 3; ++c) SprObjetivos.FijaCelda(fila, c + 1, rs[c].toString());
}

void FrmHabilidad::SprObjetivos_Click(int fila) {
    TxtConcepto->setText(SprObjetivos.Celda(fila, 1));
    TxtHabilidad->setText(SprObjetivos.Celda(fila, 2));
    TxtCodigo->setText(SprObjetivos.Celda(fila, 3));
}

// The key box goes back to 0, a new skill.
void FrmHabilidad::Limpia_Campos() {
    TxtConcepto->clear();
    TxtHabilidad->clear();
    TxtCodigo->setText(QStringLiteral("0"));
}

void FrmHabilidad::XPButAceptar_Click() {
    const QString concepto = TxtConcepto->text();
    if (concepto.isEmpty() || TxtCodigo->text().isEmpty() || TxtHabilidad->text().isEmpty()) return;
    if (dialogos().MsgBox(QStringLiteral("Desea agregar la nueva Habilidad ") + concepto,
                          vbOKCancel + vbQuestion, kTitulo) != vbOK)
        return;
    if (TxtCodigo->text() != QLatin1String("0")) {
        // The definition takes the concept's text: an edit overwrites the definition.
        base().Execute(
            QStringLiteral(
                " update objetivos set  concepto =  ?, descripcion =  ? where idobjetivo = ?"),
            {concepto, concepto, TxtCodigo->text()});
    } else {
        base().Execute(QStringLiteral(" insert into objetivos values (?, ?, ?, 'Activo')"),
                       {Maximo_Mas_Uno(QStringLiteral("objetivos"), QStringLiteral("idobjetivo")),
                        concepto, TxtHabilidad->text()});
    }
    Limpia_Campos();
    Carga_Objetivos();
}

void FrmHabilidad::XPButton1_Click() {
    if (dialogos().MsgBox(QStringLiteral("Desea Eliminar el Concepto ") + TxtConcepto->text(),
                          vbOKCancel + vbQuestion,
                          QStringLiteral("mantenedor de Habilidades")) != vbOK)
        return;
    base().Execute(QStringLiteral(" delete from objetivos  where idobjetivo = ?"),
                   {TxtCodigo->text()});
    Carga_Objetivos();
}

void FrmHabilidad::CmdCarga_Click() {
    const QString ruta = Elige_Planilla_Xlsx(kTitulo);
    if (!ruta.isEmpty()) Carga_Masiva_Por_Archivo(ruta);
}

// Columns of the file: A the concept, B its definition; 1000 rows at most, the rest unread.
void FrmHabilidad::Carga_Masiva_Por_Archivo(const QString& ruta) {
    const int cuenta = Reemplaza_Con_Planilla(
        ruta, QStringLiteral(" delete from Objetivos "), 1000,
        [](BaseDatos& b, const PlanillaLectura& hoja, int fila) {
            b.Execute(QStringLiteral(" insert into Objetivos values (?, ?, ?, 'ACTIVO')"),
                      {fila, hoja.Celda(fila, QStringLiteral("A")),
                       hoja.Celda(fila, QStringLiteral("B"))});
        });
    dialogos().MsgBox(QStringLiteral("Se han insertado ") + QString::number(cuenta) +
                          QStringLiteral(" Habilidades"),
                      vbInformation, QStringLiteral("Mantenedor de HAbilidades"));
    Carga_Objetivos();
}
