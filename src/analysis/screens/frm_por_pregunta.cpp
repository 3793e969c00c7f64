// FrmPorPregunta, "Analisis por Pregunta".
#include "analysis/screens/frm_por_pregunta.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPainter>
#include <QStandardPaths>

#include "analysis/analisis_pregunta.h"
#include "analysis/exporta_planilla.h"
#include "app/estado.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"
#include "platform/screens/cabecera_grupos.h"
#include "platform/screens/controles.h"
#include "platform/screens/impresion.h"
#include "platform/screens/vista_grafico.h"
#include "store/copias_prueba.h"

namespace {

const MargenesImpresion kMargenes{1440, 900, 720, 600};
const QString kCantidad = QStringLiteral("Cantidad");
const QString kCant = QStringLiteral("Cant.");

// A count column is as wide as its head `cantidad`.
QTableView* Vista(QWidget* padre, const QString& nombre, Grilla& grilla, const QStringList& grupos,
                  const QString& cantidad) {
    auto* vista = Vista_Grilla(padre, nombre, grilla, {});
    vista->setHorizontalHeader(new CabeceraGrupos(vista, grupos));
    QHeaderView* cabecera = vista->horizontalHeader();
    const int ancho = std::max(46, cabecera->fontMetrics().horizontalAdvance(cantidad) + 16);
    for (int c = 0; c < grilla.MaxCols() - 2; ++c) cabecera->resizeSection(c, c % 2 ? 46 : ancho);
    cabecera->resizeSection(grilla.MaxCols() - 2, 12);
    cabecera->resizeSection(grilla.MaxCols() - 1, 230);
    return vista;
}

const QStringList& Grupos_Aciertos() {
    static const QStringList g = {"Buenas", "Buenas", "Malas", "Malas", "Omitidas", "Omitidas"};
    return g;
}

const QStringList& Grupos_Frecuencia() {
    static const QStringList g = {"Alternatica A", "Alternatica A", "Alternatica B",
                                  "Alternatica B", "Alternatica C", "Alternatica C",
                                  "Alternatica D", "Alternatica D", "Alternatica E",
                                  "Alternatica E", "Omitidas",      "Omitidas"};
    return g;
}

}  // namespace

FrmPorPregunta::FrmPorPregunta(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmPorPregunta"));
    setWindowTitle(QStringLiteral("Analisis por Pregunta"));
    FrameFormas = new QGroupBox(QStringLiteral("Formas"), this);
    CboFormas = new QComboBox(FrameFormas);
    CboFormas->setObjectName(QStringLiteral("CboFormas"));
    (new QHBoxLayout(FrameFormas))->addWidget(CboFormas);
    connect(CboFormas, &QComboBox::activated, this,
            [this] { Ejecutar_Comando([this] { CboFormas_Click(); }); });
    auto* arriba = new QHBoxLayout;
    arriba->addWidget(
        Vista(this, QStringLiteral("SprAciertos"), SprAciertos, Grupos_Aciertos(), kCantidad), 3);
    arriba->addWidget(new VistaGrafico(MSChart1, this), 2);
    auto* izquierda = new QVBoxLayout;
    izquierda->addWidget(FrameFormas, 0, Qt::AlignLeft);
    izquierda->addLayout(arriba, 1);
    izquierda->addWidget(
        Vista(this, QStringLiteral("SprFrecuencia"), SprFrecuencia, Grupos_Frecuencia(), kCant), 1);
    auto* cuerpo = new QHBoxLayout(this);
    cuerpo->addLayout(izquierda, 1);
    cuerpo->addLayout(Columna_Botones(
        this, {
                  {"XPButton1", "Exportar a Excel", [this] { XPButton1_Click(); }},
                  {"XPButton2", "Imprimir Aciertos por Pregunta", [this] { XPButton2_Click(); }},
                  {"XPButton3", "Imprimir Frecuencia por Pregunta", [this] { XPButton3_Click(); }},
                  {"XPButCancelar", "Salir", [this] { close(); }},
              }));
    resize(1200, 680);
    Ejecutar_Comando([this] { Form_Load(); });
}

void FrmPorPregunta::Form_Load() {
    if (estado().Id_Prueba_Actual == 0) {
        dialogos().MsgBox(QStringLiteral("UD. no tiene asociado a una prueba para esta carga, "
                                         "verifique sus datos"),
                          vbCritical, QStringLiteral("Corrección de pruebas"));
        return;
    }
    Setea_Grilla();
    Setea_Grilla_Fre();
    FrameFormas->hide();
    QStringList formas;
    Carga_Formas_Pauta(formas);
    CboFormas->clear();
    CboFormas->addItems(formas);
    if (formas.size() >= 2)
        FrameFormas->show();
    else
        Calcula_Forma(1);
    Agrega_Datos_Prueba(SprAciertos);
    Agrega_Datos_Prueba(SprFrecuencia);
}

void FrmPorPregunta::CboFormas_Click() {
    Calcula_Forma(CInt(Val(CboFormas->currentText())));
}

void FrmPorPregunta::XPButton1_Click() {
    const int formas = CboFormas->count();
    const QString nombre = dialogos().GuardarArchivo(
        QStringLiteral("Exportar Excel"), QStringLiteral("Libro de Excel (*.xlsx)"),
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    if (nombre.trimmed().isEmpty()) return;
    const FuentesExportacion fuentes{&MSChart1, nullptr};
    if (formas == 1) {
        if (Exporta_Planilla(nombre, SprAciertos, SprFrecuencia, 1, fuentes))
            dialogos().MsgBox(QStringLiteral(" Datos exportados en ") + nombre, vbInformation,
                              QStringLiteral("Zorta"));
        return;
    }
    // No list entry at all takes this branch too: no file, an empty list.
    const QString lista = Exporta_Formas(
        nombre, formas, [this](int k) { Calcula_Forma(k); },
        [&](const QString& archivo) {
            Exporta_Planilla(archivo, SprAciertos, SprFrecuencia, 1, fuentes);
        });
    dialogos().MsgBox(QStringLiteral(" Datos exportados en ") + lista, vbInformation,
                      QStringLiteral("Exportación Excel Analisis por Pregunta"));
}

void FrmPorPregunta::XPButton2_Click() {
    Imprime_Grilla(SprAciertos, QStringLiteral("Aciertos Por Pregunta"), 2, kMargenes);
}

void FrmPorPregunta::XPButton3_Click() {
    Imprime_Grilla(SprFrecuencia, QStringLiteral("Frecuencia Por Pregunta"), 2, kMargenes);
}
