// FrmHabiliObjet, the axes and skills analysis: its load, the form list, exports and prints.
#include "analysis/screens/frm_habili_objet.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QStandardPaths>

#include "analysis/analisis_pregunta.h"
#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/screens/cabecera_grupos.h"
#include "platform/screens/controles.h"
#include "platform/screens/impresion.h"
#include "platform/screens/vista_grafico.h"
#include "store/copias_prueba.h"

namespace {

const MargenesImpresion kMargenes{1440, 900, 720, 600};

QString Pide_Archivo() {
    return dialogos().GuardarArchivo(
        QStringLiteral("Exportar Excel"), QStringLiteral("Libro de Excel (*.xlsx)"),
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
}

void Avisa_Lista(const QString& lista) {
    dialogos().MsgBox(QStringLiteral(" Datos exportados en ") + lista, vbInformation,
                      QStringLiteral("Exportación Excel Por Forma"));
}

}  // namespace

FrmHabiliObjet::FrmHabiliObjet(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmHabiliObjet"));
    setWindowTitle(Titulo_Analisis());
    const QStringList cabezas = {"Cantidad", "% Buenas",  "Cantidad",   "% Malas",
                                 "Cantidad", "% Omisión", "Rendimiento"};
    for (int c = 1; c <= 7; ++c) SprSuperior.FijaCelda(0, c, cabezas[c - 1]);
    LblForma = new QLabel(QStringLiteral("Forma"), this);
    CboForma = new QComboBox(this);
    CboForma->setObjectName(QStringLiteral("CboForma"));
    connect(CboForma, &QComboBox::activated, this,
            [this] { Ejecutar_Comando([this] { CboForma_Click(); }); });
    auto* formas = new QHBoxLayout;
    formas->addWidget(LblForma);
    formas->addWidget(CboForma);
    formas->addStretch(1);
    auto* superior = Vista_Grilla(this, QStringLiteral("SprSuperior"), SprSuperior, {});
    superior->verticalHeader()->setMinimumWidth(200);
    superior->horizontalHeader()->setDefaultSectionSize(86);
    auto* arriba = new QHBoxLayout;
    arriba->addWidget(superior, 3);
    arriba->addWidget(new VistaGrafico(MSChart1, this), 2);
    vista_pantalla_ = Vista_Grilla(this, QStringLiteral("SprPantalla"), SprPantalla, {});
    vista_pantalla_->setHorizontalHeader(new CabeceraGrupos(vista_pantalla_));
    vista_pantalla_->horizontalHeader()->setDefaultSectionSize(86);
    vista_pantalla_->verticalHeader()->setMinimumWidth(200);
    auto* izquierda = new QVBoxLayout;
    izquierda->addLayout(formas);
    izquierda->addLayout(arriba, 1);
    izquierda->addWidget(vista_pantalla_, 1);
    auto* cuerpo = new QHBoxLayout(this);
    cuerpo->addLayout(izquierda, 1);
    cuerpo->addLayout(Columna_Botones(
        this, {
                  {"XPButton1", "Exportar a Excel", [this] { XPButton1_Click(); }},
                  {"XPButton2", "Imprimir", [this] { XPButton2_Click(); }},
                  {"CmdExportaAlumnos", "Exportar a Excel", [this] { CmdExportaAlumnos_Click(); }},
                  {"XPButton3", "Imprimir", [this] { XPButton3_Click(); }},
                  {"XPButton4", "Resultados Curso SEP", [this] { XPButton4_Click(); }},
                  {"XPButton5", "Excel solo SEP", [this] { XPButton5_Click(); }},
                  {"XPButton6", "Logros por Curso SEP", [this] { XPButton6_Click(); }},
                  {"XPButAceptar", "Aceptar", [] {}},
                  {"XPButCancelar", "Salir", [this] { close(); }},
              }));
    resize(1200, 720);
    Ejecutar_Comando([this] { Form_Load(); });
}

void FrmHabiliObjet::Form_Load() {
    Estado& e = estado();
    if (e.Id_Prueba_Actual == 0) {
        dialogos().MsgBox(QStringLiteral("UD. no tiene asociado a una prueba para esta carga, "
                                         "verifique sus datos"),
                          vbCritical, QStringLiteral("Correccion de pruebas"));
        return;
    }
    LblForma->hide();
    CboForma->hide();
    QStringList formas;
    Carga_Formas_Pauta(formas);
    CboForma->clear();
    CboForma->addItems(formas);
    LblForma->setVisible(formas.size() >= 2);
    CboForma->setVisible(formas.size() >= 2);
    e.Analisis_Valido = true;
    Recordset rs = e.BaseDatos->OpenRecordset(
        QStringLiteral("select * from NEW_EJE_TEMATICO Where idprueba = ? and tipo_prueba = ? "
                       "order by correlativo"),
        {e.Id_Prueba_Actual, e.Tipo_Prueba_Actual});
    if (rs.Eof()) {
        dialogos().MsgBox(
            QStringLiteral("La prueba ") + e.Nombre_Prueba_Actual + QStringLiteral(" codigo ") +
                QString::number(e.Id_Prueba_Actual) +
                (Modo_Habilidades()
                     ? QStringLiteral(" no tiene asociado las Habilidades, asignelas")
                     : QStringLiteral(" no tiene asociado Ejes tematicos, asignelos")),
            vbCritical, QStringLiteral("Ejes tematicos y Habilidades"));
        e.Analisis_Valido = false;
        return;
    }
    niveles_ = Lee_Niveles();
    Carga_Respuesta_Prueba(SprRespuestas);
    Objetivos_Prueba(SprObjetivos);
    Lee_Nombres_Por_Modo(SprSuperior);
    setWindowTitle(Titulo_Analisis());
    if (CboForma->count() > 0) Selecciona_Forma(1);
    Pareo_Objetivos_Preguntas(SprRespuestas, SprObjetivos, CboForma->currentText(), SprSuperior);
    // Room for every student group, also those the course grid merges or leaves out.
    Setea_Grilla_Pantalla(std::max(SprSuperior.MaxRows(), Grupos_Alumno(SprObjetivos)),
                          SprPantalla);
    Muestra_Cabecera();
    Agrega_Alummnos(SprRespuestas, SprObjetivos, niveles_, SprPantalla, SprSoloSep, SprSep);
    Genero_Grafico();
    if (SprSuperior.MaxRows() == 0) SprPantalla.SetMaxRows(0);
    Carga_Nueva_Grilla_Sep(SprSuperior, SprPantalla, niveles_, SprSep);
}

void FrmHabiliObjet::Muestra_Cabecera() {
    const QStringList ejes = Cabecera_Ejes(SprSuperior, (SprPantalla.MaxCols() - 1) / 5);
    static_cast<CabeceraGrupos*>(vista_pantalla_->horizontalHeader())->Fija(ejes.mid(1));
}

void FrmHabiliObjet::Recalcula_Forma() {
    Lee_Nombres_Por_Modo(SprSuperior);
    setWindowTitle(Titulo_Analisis());
    Pareo_Objetivos_Preguntas(SprRespuestas, SprObjetivos, CboForma->currentText(), SprSuperior);
    Genero_Grafico();
}

void FrmHabiliObjet::CboForma_Click() {
    Recalcula_Forma();
}

void FrmHabiliObjet::Selecciona_Forma(int k) {
    CboForma->setCurrentIndex(k - 1);
    Recalcula_Forma();
}

void FrmHabiliObjet::Genero_Grafico() {
    if (SprSuperior.MaxRows() == 0) return;
    QStringList etiquetas;
    for (int r = 1; r <= SprSuperior.MaxRows(); ++r) etiquetas << QStringLiteral("EJE %1").arg(r);
    MSChart1.series = {QStringLiteral(" % Buenas"), QStringLiteral("% Malas"),
                       QStringLiteral("% Omision"), QStringLiteral("% Rendimiento")};
    MSChart1.ChartData(etiquetas, Datos_Grafico_Ejes(SprSuperior));
    MSChart1.chartType = GraficoBarras2D;
    MSChart1.Refresh();
}

FuentesExportacion FrmHabiliObjet::Fuentes() {
    return {&MSChart1, &SprSuperior};
}

void FrmHabiliObjet::Exporta(Grilla& grilla, int16_t tipo, Grilla& varias, int16_t tipo_varias) {
    const int formas = CboForma->count();
    if (formas <= 1) return Exporta_Con_Dialogo(grilla, tipo, Fuentes());
    const QString nombre = Pide_Archivo();
    if (nombre.trimmed().isEmpty()) return;
    QString lista;
    for (int k = 1; k <= formas; ++k) {
        Selecciona_Forma(k);
        const QString archivo = Archivo_Forma(nombre, k);
        Exporta_Planilla(archivo, varias, varias, tipo_varias, Fuentes());
        lista += QStringLiteral("\r") + archivo + QStringLiteral("\r ");
    }
    Avisa_Lista(lista);
}

void FrmHabiliObjet::XPButton1_Click() {
    Exporta(SprSuperior, 5, SprSuperior, 5);
}

void FrmHabiliObjet::CmdExportaAlumnos_Click() {
    Exporta(SprPantalla, 6, SprPantalla, 6);
}

// With several forms the three SEP buttons write the students' grid as kind 6.
void FrmHabiliObjet::XPButton4_Click() {
    Exporta(SprSep, 7, SprPantalla, 6);
}

void FrmHabiliObjet::XPButton5_Click() {
    Exporta(SprSoloSep, 8, SprPantalla, 6);
}

void FrmHabiliObjet::XPButton6_Click() {
    Exporta(SprSoloSep, 9, SprPantalla, 6);
}

void FrmHabiliObjet::Imprime(const Grilla& grilla, const QString& titulo) {
    Imprime_Grilla(grilla, titulo, 2, kMargenes, Impresora);
}

// With several forms each form is printed and named as an export would be; no file is written.
void FrmHabiliObjet::XPButton2_Click() {
    const int formas = CboForma->count();
    if (formas <= 1) return Imprime(SprSuperior, Titulo_Analisis());
    const QString nombre = Pide_Archivo();
    if (nombre.trimmed().isEmpty()) return;
    const QString base =
        nombre.contains(QLatin1Char('.')) ? nombre : QStringLiteral("C:\\Impresion_Archivos");
    QString lista;
    for (int k = 1; k <= formas; ++k) {
        Selecciona_Forma(k);
        Imprime(SprSuperior, Titulo_Analisis());
        lista += QStringLiteral("\r") + Archivo_Forma(base, k) + QStringLiteral("\r ");
    }
    Avisa_Lista(lista);
}

// The job title is set on the course grid: the students' sheet prints without it.
void FrmHabiliObjet::XPButton3_Click() {
    Imprime(SprPantalla, QString());
}
