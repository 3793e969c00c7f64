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

FrmHabiliObjet::FrmHabiliObjet(QWidget* padre) : FrmHabiliObjet(padre, false) {}

FrmHabiliObjet::FrmHabiliObjet(QWidget* padre, bool sep) : QWidget(padre), TablasEjes(sep) {
    setObjectName(sep ? QStringLiteral("FrmSEP") : QStringLiteral("FrmHabiliObjet"));
    setWindowTitle(Titulo_Analisis());
    Construye();
    resize(1200, 720);
    Ejecutar_Comando([this] { Form_Load(); });
}

void FrmHabiliObjet::Construye() {
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
    auto* curso = new QVBoxLayout;
    curso->addWidget(superior, 1);
    if (Es_Sep()) curso->addWidget(Vista_Niveles(), 1);
    auto* arriba = new QHBoxLayout;
    arriba->addLayout(curso, 3);
    arriba->addWidget(new VistaGrafico(MSChart1, this), 2);
    vista_pantalla_ = Vista_Grilla(this, QStringLiteral("SprPantalla"), SprPantalla, {});
    vista_pantalla_->setHorizontalHeader(new CabeceraGrupos(vista_pantalla_));
    vista_pantalla_->horizontalHeader()->setDefaultSectionSize(86);
    vista_pantalla_->verticalHeader()->setMinimumWidth(200);
    Esquina_Grilla(vista_pantalla_, SprPantalla);
    auto* izquierda = new QVBoxLayout;
    izquierda->addLayout(formas);
    izquierda->addLayout(arriba, 1);
    izquierda->addWidget(vista_pantalla_, 1);
    auto* cuerpo = new QHBoxLayout(this);
    cuerpo->addLayout(izquierda, 1);
    std::vector<DefBoton> botones = {
        {"XPButton1", "Exportar a Excel", [this] { XPButton1_Click(); }},
        {"XPButton2", "Imprimir", [this] { XPButton2_Click(); }},
        {"CmdExportaAlumnos", "Exportar a Excel", [this] { CmdExportaAlumnos_Click(); }},
        {"XPButton3", "Imprimir", [this] { XPButton3_Click(); }},
        {"XPButton4", Es_Sep() ? "Exportar a Excel vía SEP" : "Resultados Curso SEP",
         [this] { XPButton4_Click(); }},
        {"XPButton5", "Excel solo SEP", [this] { XPButton5_Click(); }},
        {"XPButton6", "Logros por Curso SEP", [this] { XPButton6_Click(); }},
        {"XPButAceptar", "Aceptar", [] {}},
        {"XPButCancelar", "Salir", [this] { close(); }},
    };
    // The SEP screen has no button for the course's achievements.
    if (Es_Sep()) botones.erase(botones.begin() + 6);
    cuerpo->addLayout(Columna_Botones(this, botones));
}

// The SEP screen shows the course's four levels per axis, as its report titles them.
QTableView* FrmHabiliObjet::Vista_Niveles() {
    const QStringList cabezas = {"", "N°", "%", "N°", "%", "N°", "%", "N°", "%"};
    for (int c = 1; c <= 9; ++c) SprSep.FijaCelda(0, c, cabezas[c - 1]);
    SprSep.FijaCelda(
        0, 1, Modo_Habilidades() ? QStringLiteral("HABILIDAD") : QStringLiteral("EJE TEMATICO"));
    auto* vista = Vista_Grilla(this, QStringLiteral("SprSep"), SprSep, {});
    QStringList grupos = {QString()};
    for (const char* nivel : {"NIVEL BAJO", "NIVEL MEDIO BAJO", "NIVEL MEDIO ALTO", "NIVEL ALTO"})
        grupos << QString::fromLatin1(nivel) << QString::fromLatin1(nivel);
    vista->setHorizontalHeader(new CabeceraGrupos(vista, grupos));
    vista->horizontalHeader()->setDefaultSectionSize(60);
    vista->setColumnWidth(0, 200);
    vista->verticalHeader()->hide();
    return vista;
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
    if (!Carga_Ejes(formas.value(0))) return;
    setWindowTitle(Titulo_Analisis());
    Muestra_Cabecera();
}

void FrmHabiliObjet::Muestra_Cabecera() {
    const QStringList ejes = Cabecera_Ejes(SprSuperior, (SprPantalla.MaxCols() - 1) / 5);
    static_cast<CabeceraGrupos*>(vista_pantalla_->horizontalHeader())->Fija(ejes.mid(1));
}

void FrmHabiliObjet::CboForma_Click() {
    setWindowTitle(Titulo_Analisis());
    Recalcula_Forma(CboForma->currentText());
}

void FrmHabiliObjet::Selecciona_Forma(int k) {
    CboForma->setCurrentIndex(k - 1);
    CboForma_Click();
}

FuentesExportacion FrmHabiliObjet::Fuentes() {
    return Fuentes_Propias();
}

void FrmHabiliObjet::Exporta(Grilla& grilla, int16_t tipo, Grilla& varias, int16_t tipo_varias) {
    // An empty form list takes the several-forms branch: no file, an empty list.
    const int formas = CboForma->count();
    if (formas == 1) return Exporta_Con_Dialogo(grilla, tipo, Fuentes());
    const QString nombre = Pide_Archivo();
    if (nombre.trimmed().isEmpty()) return;
    Avisa_Lista(Exporta_Formas(
        nombre, formas, [this](int k) { Selecciona_Forma(k); },
        [&](const QString& archivo) {
            Exporta_Planilla(archivo, varias, varias, tipo_varias, Fuentes());
        }));
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
    if (formas == 1) return Imprime(SprSuperior, Titulo_Analisis());
    const QString nombre = Pide_Archivo();
    if (nombre.trimmed().isEmpty()) return;
    const QString base =
        nombre.contains(QLatin1Char('.')) ? nombre : QStringLiteral("C:\\Impresion_Archivos");
    Avisa_Lista(Exporta_Formas(
        base, formas,
        [this](int k) {
            Selecciona_Forma(k);
            Imprime(SprSuperior, Titulo_Analisis());
        },
        [](const QString&) {}));
}

// The job title is set on the course grid: the students' sheet prints without it.
void FrmHabiliObjet::XPButton3_Click() {
    Imprime(SprPantalla, QString());
}
