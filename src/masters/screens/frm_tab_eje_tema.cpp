// FrmTabEjeTema, "Tabla ejes tematicos".
#include "masters/screens/frm_tab_eje_tema.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include "app/estado.h"
#include "masters/carga_planilla.h"
#include "platform/screens/controles.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "store/contadores.h"

namespace {

const QString kTitulo = QStringLiteral("Mantenedor de Ejes Tematicos");

BaseDatos& base() {
    return *estado().BaseDatos;
}

QComboBox* Lista(QWidget* padre, const QString& nombre, bool editable) {
    auto* lista = new QComboBox(padre);
    lista->setObjectName(nombre);
    lista->setEditable(editable);
    lista->setMinimumContentsLength(16);
    return lista;
}

}  // namespace

FrmTabEjeTema::FrmTabEjeTema(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmTabEjeTema"));
    setWindowTitle(QStringLiteral("Tabla ejes tematicos"));
    TxtNombre = Caja(this, QStringLiteral("TxtNombre"));
    TxtID = Caja(this, QStringLiteral("TxtID"));
    TxtID->setReadOnly(true);
    CboPrueba = Lista(this, QStringLiteral("CboPrueba"), false);
    CboPrueba->addItems(
        {QStringLiteral("GENERAL"), QStringLiteral("PSU"), QStringLiteral("SIMCE")});
    CboPrueba->setCurrentIndex(-1);
    connect(CboPrueba, &QComboBox::activated, this,
            [this] { Ejecutar_Comando([this] { CboPrueba_Click(); }); });
    CboTipoEnsayo = Lista(this, QStringLiteral("CboTipoEnsayo"), true);
    CboNiveles = Lista(this, QStringLiteral("CboNiveles"), false);

    auto* capa = new QGridLayout(this);
    const QStringList etiquetas = {
        QStringLiteral("Nombre de eje"), QStringLiteral("Id"), QStringLiteral("Tipo de Prueba"),
        QStringLiteral("Ensayo ó asignatura"), QStringLiteral("Niveles")};
    const QList<QWidget*> campos = {TxtNombre, TxtID, CboPrueba, CboTipoEnsayo, CboNiveles};
    for (int i = 0; i < campos.size(); ++i) {
        capa->addWidget(new QLabel(etiquetas[i], this), i, 0);
        capa->addWidget(campos[i], i, 1);
    }
    capa->addWidget(Arma_Grilla(), campos.size(), 0, 1, 3);
    auto* botones =
        Columna_Botones(this, {{"XPButAceptar", "Aceptar", [this] { XPButAceptar_Click(); }},
                               {"XPButton1", "Eliminar", [this] { XPButton1_Click(); }},
                               {"CmdCarga", "Cargar Planilla", [this] { CmdCarga_Click(); }},
                               {"XPButCancelar", "Cancelar", [this] { close(); }}});
    capa->addLayout(botones, 0, 2, campos.size(), 1);
    resize(720, 560);
    Ejecutar_Comando([this] { Carga_Ejes(); });
}

// The grid under its upper head, "Ejes Temáticos definidos".
QWidget* FrmTabEjeTema::Arma_Grilla() {
    const QStringList cabezas = {QStringLiteral("Nombre de eje"), QStringLiteral("Tipo de Prueba"),
                                 QStringLiteral("Ensayo ó asignatura"), QStringLiteral("Id")};
    for (int c = 1; c <= 4; ++c) SprEjeTema.FijaCelda(0, c, cabezas[c - 1]);
    QTableView* vista = Vista_Grilla(this, QStringLiteral("SprEjeTema"), SprEjeTema,
                                     [this](int f) { SprEjeTema_Click(f); });
    vista->setColumnWidth(0, 260);
    vista->setColumnWidth(1, 110);
    vista->setColumnWidth(2, 170);
    vista->horizontalHeader()->setStretchLastSection(true);
    auto* marco = new QWidget(this);
    auto* capa = new QVBoxLayout(marco);
    capa->setContentsMargins(0, 0, 0, 0);
    capa->setSpacing(0);
    auto* titulo = new QLabel(QStringLiteral("Ejes Temáticos definidos"), marco);
    titulo->setAlignment(Qt::AlignCenter);
    titulo->setFrameShape(QFrame::StyledPanel);
    capa->addWidget(titulo);
    capa->addWidget(vista);
    return marco;
}

void FrmTabEjeTema::Carga_Ejes() {
    Recordset rs =
        base().OpenRecordset(QStringLiteral("select eje, TipoPrueba, TipoEnsayo, IdEje from ejes"));
    SprEjeTema.SetMaxRows(rs.RecordCount());
    for (int fila = 1; !rs.Eof(); rs.MoveNext(), ++fila)
        for (int c = 0; c < 4; ++c) SprEjeTema.FijaCelda(fila, c + 1, rs[c].toString());
}

void FrmTabEjeTema::CboPrueba_Click() {
    const QString prueba = CboPrueba->currentText();
    CboTipoEnsayo->clear();
    QString sql = QStringLiteral(" select distinct tipoensayo from ejes where tipoprueba = ?");
    QVariantList parametros = {prueba};
    if (prueba == QLatin1String("SIMCE")) {
        CboNiveles->clear();
        CboNiveles->addItems({QStringLiteral("Cuarto Básico"), QStringLiteral("Octavo Básico"),
                              QStringLiteral("II Medio")});
    } else if (prueba == QLatin1String("GENERAL")) {
        sql = QStringLiteral(" select asignatura from asignaturas");
        parametros.clear();
    }
    for (Recordset rs = base().OpenRecordset(sql, parametros); !rs.Eof(); rs.MoveNext())
        CboTipoEnsayo->addItem(rs[0].toString());
    CboTipoEnsayo->setCurrentIndex(-1);
}

void FrmTabEjeTema::SprEjeTema_Click(int fila) {
    TxtNombre->setText(SprEjeTema.Celda(fila, 1));
    TxtID->setText(SprEjeTema.Celda(fila, 4));
    CboPrueba->setCurrentIndex(CboPrueba->findText(SprEjeTema.Celda(fila, 2)));
    CboPrueba_Click();
    CboTipoEnsayo->setCurrentText(SprEjeTema.Celda(fila, 3));
}

// Always a new row, even for an axis chosen from the grid.
void FrmTabEjeTema::XPButAceptar_Click() {
    if (CboPrueba->currentText().isEmpty() || CboTipoEnsayo->currentText().isEmpty() ||
        TxtNombre->text().isEmpty())
        return;
    base().Execute(QStringLiteral("insert into ejes values (?, ?, ?, ?)"),
                   {Maximo_Mas_Uno(QStringLiteral("ejes"), QStringLiteral("ideje")),
                    TxtNombre->text(), CboTipoEnsayo->currentText(), CboPrueba->currentText()});
    TxtNombre->clear();
    TxtID->clear();
    CboPrueba->setCurrentIndex(-1);
    CboTipoEnsayo->setCurrentText(QString());
    Carga_Ejes();
}

void FrmTabEjeTema::XPButton1_Click() {
    if (dialogos().MsgBox(QStringLiteral("Desea Eliminar el Eje Tematico : ") + TxtNombre->text(),
                          vbOKCancel + vbQuestion, kTitulo) != vbOK)
        return;
    base().Execute(QStringLiteral(" delete from ejes  where ideje = ?"), {TxtID->text()});
    Carga_Ejes();
}

void FrmTabEjeTema::CmdCarga_Click() {
    const QString ruta = Elige_Planilla_Xlsx(kTitulo);
    if (!ruta.isEmpty()) Carga_Masiva_Por_Archivo(ruta);
}

// Columns of the file: A the axis, B its subject or level, C its test type.
void FrmTabEjeTema::Carga_Masiva_Por_Archivo(const QString& ruta) {
    const int cuenta = Reemplaza_Con_Planilla(
        ruta, QStringLiteral(" delete from Ejes "), 10000,
        [](BaseDatos& b, const PlanillaLectura& hoja, int fila) {
            b.Execute(
                QStringLiteral(" insert into ejes values (?, ?, ?, ?)"),
                {fila, hoja.Celda(fila, QStringLiteral("A")), hoja.Celda(fila, QStringLiteral("B")),
                 hoja.Celda(fila, QStringLiteral("C"))});
        });
    dialogos().MsgBox(QStringLiteral("Se han insertado ") + QString::number(cuenta) +
                          QStringLiteral(" Eje Tematicos"),
                      vbInformation, kTitulo);
    Carga_Ejes();
}
