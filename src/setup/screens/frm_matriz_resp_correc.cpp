// The question matrix: loading a form and assigning axes and skills.
#include "setup/screens/frm_matriz_resp_correc.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QVBoxLayout>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"
#include "platform/screens/celda_lista.h"
#include "platform/screens/controles.h"
#include "platform/screens/grilla_modelo.h"
#include "platform/screens/lista_clave.h"

namespace {

BaseDatos& Base() {
    return *estado().BaseDatos;
}

QComboBox* Lista(QWidget* padre, const char* nombre) {
    auto* c = new QComboBox(padre);
    c->setObjectName(QString::fromUtf8(nombre));
    c->setMinimumContentsLength(18);
    return c;
}

// The letter shown for a key code; another code repeats the letter before it.
QString Letra(int codigo, const QString& anterior) {
    if (codigo >= 1 && codigo <= 5) return QString(QChar(u'A' + codigo - 1));
    if (codigo == 7) return QStringLiteral("O");
    if (codigo == 9) return QStringLiteral("X");
    return anterior;
}

}  // namespace

FrmMatrizRespCorrec::FrmMatrizRespCorrec(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmMatrizRespCorrec"));
    setWindowTitle(QStringLiteral("Matriz de respuestas correctas"));
    vSMatzRespCorrec.FijaCelda(0, 1, QStringLiteral("Nº Preg."));
    vSMatzRespCorrec.FijaCelda(0, 2, QStringLiteral("Opciones"));
    vSEjeTemario.FijaCelda(0, 1, QStringLiteral("Preg. Nº"));
    vSEjeTemario.FijaCelda(0, 2, QStringLiteral("Eje Temático"));
    vSPregObjet.FijaCelda(0, 1, QStringLiteral("Preg. Nº"));
    vSPregObjet.FijaCelda(0, 2, QStringLiteral("Habilidades"));
    Construye();
    Form_Load();
}

QTableView* FrmMatrizRespCorrec::Vista(Grilla& g, const QString& nombre, int editable) {
    auto* v = new QTableView(this);
    v->setObjectName(nombre);
    auto* m = new GrillaModelo(g, v);
    m->Editable(editable);
    v->setModel(m);
    v->setSelectionBehavior(QAbstractItemView::SelectRows);
    v->setSelectionMode(QAbstractItemView::ExtendedSelection);
    v->verticalHeader()->setVisible(false);
    v->verticalHeader()->setDefaultSectionSize(22);
    v->horizontalHeader()->setStretchLastSection(true);
    v->setColumnWidth(0, 70);
    v->setMinimumWidth(editable ? 170 : 280);
    return v;
}

void FrmMatrizRespCorrec::Construye() {
    CboFormas = Lista(this, "CboFormas");
    CmbPregNum = Lista(this, "CmbPregNum");
    CmbPregObjetivo = Lista(this, "CmbPregObjetivo");
    CmbEjetema = Lista(this, "CmbEjetema");
    CboDescripcion = Lista(this, "CboDescripcion");
    CmbAsigtura = Lista(this, "CmbAsigtura");
    LblNombrePrueba = new QLabel(this);
    Label3 = new QLabel(this);
    TxtEje1 = Caja(this, QStringLiteral("TxtEje1"));
    Txt_EjeActual = Caja(this, QStringLiteral("Txt_EjeActual"));
    TxtEje1->setReadOnly(true);
    Txt_EjeActual->setReadOnly(true);
    QTableView* respuestas = Vista(vSMatzRespCorrec, QStringLiteral("vSMatzRespCorrec"), 2);
    respuestas->setMinimumWidth(170);
    // A question is taken out of the key with "X".
    respuestas->setItemDelegateForColumn(
        1, new CeldaLista([] { return QStringList{"A", "B", "C", "D", "E", "X"}; }, respuestas));
    QTableView* ejes = Vista(vSEjeTemario, QStringLiteral("vSEjeTemario"), 0);
    QTableView* habilidades = Vista(vSPregObjet, QStringLiteral("vSPregObjet"), 0);
    auto* arriba = new QFormLayout;
    arriba->addRow(QStringLiteral("Prueba:"), LblNombrePrueba);
    arriba->addRow(QStringLiteral("Asignatura:"), Label3);
    arriba->addRow(QStringLiteral("Forma:"), CboFormas);
    auto* eje = new QFormLayout;
    eje->addRow(QStringLiteral("Asignatura de los ejes:"), CmbAsigtura);
    eje->addRow(QStringLiteral("Pregunta:"), CmbPregNum);
    eje->addRow(QStringLiteral("Eje temático:"), CmbEjetema);
    eje->addRow(QStringLiteral("Eje actual:"), TxtEje1);
    eje->addRow(Boton(this, QStringLiteral("XPButton3"), QStringLiteral("Asignar eje"),
                      [this] { XPButton3_Click(); }),
                Boton(this, QStringLiteral("XPButton4"), QStringLiteral("Deshacer marca"),
                      [this] { Cambio_Eje = false; }));
    eje->addRow(QStringLiteral("Pregunta:"), CmbPregObjetivo);
    eje->addRow(QStringLiteral("Habilidad:"), CboDescripcion);
    eje->addRow(QStringLiteral("Habilidad actual:"), Txt_EjeActual);
    eje->addRow(Boton(this, QStringLiteral("XPButton1"), QStringLiteral("Asignar habilidad"),
                      [this] { XPButton1_Click(); }),
                Boton(this, QStringLiteral("XPButton2"), QStringLiteral("Deshacer marca"),
                      [this] { Cambio_Objetivo = false; }));
    eje->addRow(Boton(this, QStringLiteral("XPButActPond"), QStringLiteral("Grabar"),
                      [this] { XPButActPond_Click(); }));
    auto* grillas = new QHBoxLayout;
    grillas->addWidget(respuestas, 2);
    grillas->addWidget(ejes, 3);
    grillas->addWidget(habilidades, 3);
    auto* controles = new QWidget(this);
    controles->setLayout(eje);
    controles->setMaximumWidth(440);
    grillas->addWidget(controles);
    auto* capa = new QVBoxLayout(this);
    capa->addLayout(arriba);
    capa->addLayout(grillas, 1);
    connect(CboFormas, &QComboBox::activated, this,
            [this] { Ejecutar_Comando([this] { CboFormas_Click(); }); });
    connect(CmbAsigtura, &QComboBox::activated, this,
            [this] { Ejecutar_Comando([this] { CmbAsigtura_Click(); }); });
    const auto filas = [](QTableView* v) {
        QList<int> f;
        for (const QModelIndex& i : v->selectionModel()->selectedRows()) f << i.row() + 1;
        return f;
    };
    connect(ejes, &QTableView::clicked, this, [=, this](const QModelIndex& i) {
        TxtEje1->setText(vSEjeTemario.Celda(i.row() + 1, 2));
        if (filas(ejes).size() > 1) Ejecutar_Comando([&] { vSEjeTemario_Seleccion(filas(ejes)); });
    });
    connect(habilidades, &QTableView::clicked, this, [=, this](const QModelIndex& i) {
        Txt_EjeActual->setText(vSPregObjet.Celda(i.row() + 1, 2));
        if (filas(habilidades).size() > 1)
            Ejecutar_Comando([&] { vSPregObjet_Seleccion(filas(habilidades)); });
    });
    resize(1240, 640);
}

void FrmMatrizRespCorrec::Form_Load() {
    Estado& e = estado();
    if (e.Id_Prueba_Actual == 0) {
        dialogos().MsgBox(
            QStringLiteral(
                "No tiene numero de prueba asociado, selecione una prueba para visualizar"),
            vbOKOnly, QStringLiteral("Analisis Cualitativo"));
        return;
    }
    if (e.Nombre_Prueba_Actual.isEmpty()) {
        Recordset rs = Base().OpenRecordset(
            QStringLiteral("select * from prueba_rj  where idprueba = ?"), {e.Id_Prueba_Actual});
        e.Nombre_Prueba_Actual = rs[1].toString();
    }
    LblNombrePrueba->setText(e.Nombre_Prueba_Actual);
    Label3->setText(e.Asignatura_Actual);
    for (int f = 1; f <= std::max<int>(1, e.Numero_Formas_Actual); ++f)
        CboFormas->addItem(QString::number(f));
    CboFormas->setCurrentIndex(e.Numero_Formas_Actual == 1 ? 0 : -1);
    for (Recordset rs = Base().OpenRecordset(
             QStringLiteral("select eje from ejes  where tipoprueba = ?"), {e.Tipo_Prueba_Actual});
         !rs.Eof(); rs.MoveNext())
        CmbEjetema->addItem(rs[0].toString());
    CmbEjetema->setCurrentIndex(-1);
    for (Recordset rs =
             Base().OpenRecordset(QStringLiteral("select concepto, descripcion from objetivos "));
         !rs.Eof(); rs.MoveNext())
        Agrega_Item(CboDescripcion, rs[0].toString(), rs[1].toString());
    CboDescripcion->setCurrentIndex(-1);
    for (Recordset rs = Base().OpenRecordset(QStringLiteral("select Asignatura from Asignaturas"));
         !rs.Eof(); rs.MoveNext())
        CmbAsigtura->addItem(rs[0].toString());
    CmbAsigtura->setCurrentIndex(-1);
    if (e.Numero_Formas_Actual == 1) CboFormas_Click();
}

void FrmMatrizRespCorrec::Vacia_Grillas() {
    for (Grilla* g : {&vSMatzRespCorrec, &vSEjeTemario, &vSPregObjet}) g->SetMaxRows(0);
    CmbPregNum->clear();
    CmbPregObjetivo->clear();
}

void FrmMatrizRespCorrec::CboFormas_Click() {
    const int forma = CboFormas->currentText().toInt();
    Vacia_Grillas();
    Carga_Respuesta_Pauta(forma);
    vSEjeTemario.SetMaxRows(vSMatzRespCorrec.MaxRows());
    vSPregObjet.SetMaxRows(vSMatzRespCorrec.MaxRows());
    Carga_Detalles_Grillas(forma);
}

void FrmMatrizRespCorrec::Carga_Respuesta_Pauta(int forma) {
    Vacia_Grillas();
    Recordset rs = Base().OpenRecordset(
        QStringLiteral(" select pregunta,alternativa From resp_preguntas_pautas  Where idprueba = "
                       "? and forma = ? "
                       "order by pregunta, alternativa"),
        {estado().Id_Prueba_Actual, forma});
    const int n = rs.RecordCount();
    for (Grilla* g : {&vSMatzRespCorrec, &vSEjeTemario, &vSPregObjet}) g->SetMaxRows(n);
    QString letra;
    for (int fila = 1; !rs.Eof(); rs.MoveNext(), ++fila) {
        const QString numero = rs[0].toString();
        CmbPregNum->addItem(numero);
        CmbPregObjetivo->addItem(numero);
        for (Grilla* g : {&vSMatzRespCorrec, &vSEjeTemario, &vSPregObjet})
            g->FijaCelda(fila, 1, numero);
        letra = Letra(rs[1].toInt(), letra);
        vSMatzRespCorrec.FijaCelda(fila, 2, letra);
    }
    CmbPregNum->setCurrentIndex(-1);
    CmbPregObjetivo->setCurrentIndex(-1);
    if (n == 0)
        dialogos().MsgBox(Lineas({QStringLiteral("La matriz se ha cargado sin respuesta,"),
                                  QStringLiteral("favor elimine la pauta y escanee nuevamente")}),
                          vbOKOnly, QStringLiteral("Matriz"));
}

void FrmMatrizRespCorrec::Carga_Detalles_Grillas(int forma) {
    Recordset rs =
        Base().OpenRecordset(QStringLiteral("select numero_pregunta,eje_tematico, eje_objetivo  "
                                            "from NEW_EJE_TEMATICO  where idprueba = ? "
                                            "and forma = ? order by numero_pregunta"),
                             {estado().Id_Prueba_Actual, forma});
    for (int fila = 1; !rs.Eof(); rs.MoveNext(), ++fila) {
        vSEjeTemario.FijaCelda(fila, 2, rs[1].toString());
        vSPregObjet.FijaCelda(fila, 2, rs[2].toString());
    }
}

void FrmMatrizRespCorrec::CmbAsigtura_Click() {
    CmbEjetema->clear();
    for (Recordset rs =
             Base().OpenRecordset(QStringLiteral("select * from ejes where TipoEnsayo  =  ?"),
                                  {CmbAsigtura->currentText()});
         !rs.Eof(); rs.MoveNext())
        CmbEjetema->addItem(rs[QStringLiteral("eje")].toString());
}
