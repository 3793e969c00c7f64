// FrmAsignatura, "Mantenedor de Asignaturas".
#include "masters/screens/frm_asignatura.h"

#include <QGridLayout>
#include <QLabel>
#include <QListWidget>

#include "app/estado.h"
#include "masters/carga_planilla.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/screens/controles.h"
#include "platform/screens/lista_clave.h"
#include "store/contadores.h"

namespace {

const QString kTitulo = QStringLiteral("Mantenedor de Asignaturas");

BaseDatos& base() {
    return *estado().BaseDatos;
}

}  // namespace

FrmAsignatura::FrmAsignatura(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmAsignatura"));
    setWindowTitle(kTitulo);
    TxtNombre = Caja(this, QStringLiteral("TxtNombre"));
    LstAsiganturas = new QListWidget(this);
    LstAsiganturas->setObjectName(QStringLiteral("LstAsiganturas"));
    connect(LstAsiganturas, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* i) { LstAsiganturas_Click(LstAsiganturas->row(i)); });
    connect(LstAsiganturas, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem* i) { LstAsiganturas_DblClick(LstAsiganturas->row(i)); });

    auto* capa = new QGridLayout(this);
    capa->addWidget(new QLabel(QStringLiteral("Asignatura"), this), 0, 0);
    capa->addWidget(TxtNombre, 0, 1);
    capa->addWidget(LstAsiganturas, 1, 0, 1, 3);
    auto* botones =
        Columna_Botones(this, {{"XPButAceptar", "Aceptar", [this] { XPButAceptar_Click(); }},
                               {"XPButton1", "Eliminar", [this] { XPButton1_Click(); }},
                               {"CmdCarga", "Cargar Planilla", [this] { CmdCarga_Click(); }},
                               {"XPButCancelar", "Cancelar", [this] { close(); }}});
    capa->addLayout(botones, 0, 2, 2, 1);
    resize(520, 420);
    Ejecutar_Comando([this] { Carga_Asignaturas(); });
}

void FrmAsignatura::Carga_Asignaturas() {
    LstAsiganturas->clear();
    for (Recordset rs = base().OpenRecordset(QStringLiteral("select * from Asignaturas "));
         !rs.Eof(); rs.MoveNext())
        Agrega_Item(LstAsiganturas, rs[1].toString(), rs[0].toString());
}

void FrmAsignatura::LstAsiganturas_Click(int fila) {
    TxtNombre->setText(Texto_Item(Item_Lista(*LstAsiganturas->item(fila))));
}

void FrmAsignatura::LstAsiganturas_DblClick(int fila) {
    TxtNombre->setText(Item_Lista(*LstAsiganturas->item(fila)));
}

// The box can't refuse: its only button is OK.
void FrmAsignatura::XPButAceptar_Click() {
    const QString texto = TxtNombre->text();
    if (texto.isEmpty()) return;
    dialogos().MsgBox(QStringLiteral("Desea agregar la nueva Asignatura ") + Texto_Item(texto),
                      vbInformation, kTitulo);
    if (texto.contains(u'@')) {
        base().Execute(
            QStringLiteral(" update asignaturas set  asignatura =  ? where idasignatura = ?"),
            {Texto_Item(texto), Clave_Item(texto)});
    } else {
        base().Execute(
            QStringLiteral(" insert into Asignaturas values (?, ?)"),
            {Maximo_Mas_Uno(QStringLiteral("asignaturas"), QStringLiteral("idasignatura")), texto});
    }
    Carga_Asignaturas();
}

void FrmAsignatura::XPButton1_Click() {
    const QListWidgetItem* item = LstAsiganturas->currentItem();
    if (!item) return;
    if (dialogos().MsgBox(
            QStringLiteral("Desea Eliminar la Asignatura  ") + Texto_Item(Item_Lista(*item)),
            vbOKCancel + vbQuestion, QStringLiteral("mantenedor de Asignaturas")) != vbOK)
        return;
    base().Execute(QStringLiteral(" delete from Asignaturas  where idasignatura = ?"),
                   {Clave_Item(Item_Lista(*item))});
    Carga_Asignaturas();
}

void FrmAsignatura::CmdCarga_Click() {
    const QString ruta =
        Elige_Planilla({.filtro = QStringLiteral("Archivos xlsx|*.xlsx"),
                        .titulo = QStringLiteral("Mantenedor de Profesores"),
                        .sin_archivo = QStringLiteral("No se ha seleccionado ningún archivo"),
                        .sin_extension = QStringLiteral(
                            "El archjivo seleccionado no es extension Xls, verifique")});
    if (!ruta.isEmpty()) Carga_Masiva_Por_Archivo(ruta);
}

void FrmAsignatura::Carga_Masiva_Por_Archivo(const QString& ruta) {
    const int cuenta = Reemplaza_Con_Planilla(
        ruta, QStringLiteral(" delete from Asignaturas "), 100,
        [](BaseDatos& b, const PlanillaLectura& hoja, int fila) {
            b.Execute(QStringLiteral(" insert into Asignaturas values (?, ?)"),
                      {fila, hoja.Celda(fila, QStringLiteral("A"))});
        });
    dialogos().MsgBox(QStringLiteral("Se han insertado ") + QString::number(cuenta) +
                          QStringLiteral(" Asignaturas"),
                      vbInformation, kTitulo);
    Carga_Asignaturas();
}
