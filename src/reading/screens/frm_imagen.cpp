// The reading screen: the run's commands at the command boundary, and what the run reports
// drawn on the screen. Pixels are read from memory, so the view only follows the sheet.
#include "reading/screens/frm_imagen.h"

#include <QCoreApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QTableView>
#include <QVBoxLayout>

#include "platform/dialogos.h"
#include "platform/screens/grilla_modelo.h"
#include "platform/screens/navegacion.h"

namespace {

constexpr int kAnchoVista = 620;  // the sheet is shown at this width

QLineEdit* Campo(QWidget* padre) {
    auto* campo = new QLineEdit(padre);
    campo->setReadOnly(true);
    return campo;
}

}  // namespace

FrmImagen::FrmImagen(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmImagen"));
    setWindowTitle(QStringLiteral("Formulario Corrector"));
    Construye();
    resize(1130, 760);
    Ejecutar_Comando([this] { corrida_.Form_Load(); });
    Actualiza(corrida_);
}

void FrmImagen::Construye() {
    Picture2 = new QLabel(this);
    Picture2->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    vista_ = new QScrollArea(this);
    vista_->setWidget(Picture2);
    vista_->setWidgetResizable(true);
    vista_->setMinimumWidth(kAnchoVista + 30);
    auto* capa = new QHBoxLayout(this);
    capa->addWidget(vista_, 1);
    capa->addWidget(Panel_Derecho());
}

QWidget* FrmImagen::Panel_Derecho() {
    auto* panel = new QWidget(this);
    auto* capa = new QVBoxLayout(panel);
    auto* datos = new QFormLayout;
    lbl_CantidadHojas = new QLabel(panel);
    lbl_Leidas = new QLabel(panel);
    TxtForma = Campo(panel);
    TxtRut = Campo(panel);
    Txt_Rut_2 = Campo(panel);
    datos->addRow(QStringLiteral("Hojas en la carpeta"), lbl_CantidadHojas);
    datos->addRow(QStringLiteral("Hojas leídas"), lbl_Leidas);
    datos->addRow(QStringLiteral("Forma"), TxtForma);
    datos->addRow(QStringLiteral("Rut"), TxtRut);
    datos->addRow(QStringLiteral("Rut leído"), Txt_Rut_2);
    capa->addLayout(datos);
    Progreso = new QProgressBar(panel);
    capa->addWidget(Progreso);
    List1 = new QListWidget(panel);
    capa->addWidget(List1);
    corrida_.c.SprRespuesta_Correctas.FijaCelda(0, 1, QStringLiteral("Pregunta"));
    corrida_.c.SprRespuesta_Correctas.FijaCelda(0, 2, QStringLiteral("Respuesta"));
    auto* respuestas = new QTableView(panel);
    respuestas->setModel(new GrillaModelo(corrida_.c.SprRespuesta_Correctas, respuestas));
    respuestas->horizontalHeader()->setStretchLastSection(true);
    respuestas->verticalHeader()->setDefaultSectionSize(22);
    capa->addWidget(respuestas, 1);
    CmdCarga_Lee = new QPushButton(panel);
    CmdCorregir_Pruebas = new QPushButton(panel);
    auto* limpia = new QPushButton(QStringLiteral("Limpiar"), panel);
    auto* salir = new QPushButton(QStringLiteral("SALIR"), panel);
    for (QPushButton* b : {CmdCarga_Lee, CmdCorregir_Pruebas, limpia, salir}) capa->addWidget(b);
    connect(CmdCarga_Lee, &QPushButton::clicked, this, [this] { CmdCarga_Lee_Click(); });
    connect(CmdCorregir_Pruebas, &QPushButton::clicked, this,
            [this] { CmdCorregir_Pruebas_Click(); });
    connect(limpia, &QPushButton::clicked, this, [this] { CmdLimpiaGrilla_Click(); });
    connect(salir, &QPushButton::clicked, this, [this] { CmdSalir_Click(); });
    panel->setFixedWidth(380);
    return panel;
}

// While a run reads the folder, the pauses let the screen repaint, but emptying the folder or
// unloading the screen under the run would lose sheets: those clicks wait for its end.
void FrmImagen::CmdCarga_Lee_Click() {
    if (!en_corrida_) Ejecutar_Comando([this] { corrida_.CmdCarga_Lee(); });
}

void FrmImagen::CmdCorregir_Pruebas_Click() {
    en_corrida_ = true;
    Ejecutar_Comando([this] { corrida_.CmdCorregir_Pruebas(); });
    en_corrida_ = false;
}

void FrmImagen::CmdLimpiaGrilla_Click() {
    Ejecutar_Comando([this] { corrida_.CmdLimpiaGrilla(); });
}

void FrmImagen::CmdSalir_Click() {
    if (en_corrida_) return;
    Descarga_Pantalla(QStringLiteral("frmCorrecPru"));
    Muestra_Pantalla(QStringLiteral("frmCorrecPru"));
    Descarga_Pantalla(QStringLiteral("FrmImagen"));
}

void FrmImagen::Hoja_En_Mano(const CorridaLectura& corrida, const Imagen& imagen) {
    escala_ = imagen.ancho() > 0 ? double(kAnchoVista) / imagen.ancho() : 1.0;
    hoja_ = QPixmap(corrida.Ruta_Hoja).scaledToWidth(kAnchoVista, Qt::SmoothTransformation);
    vista_->ensureVisible(0, 0);
    Actualiza(corrida);
}

void FrmImagen::Actualiza(const CorridaLectura& c) {
    CmdCarga_Lee->setText(c.Caption_Carga);
    CmdCorregir_Pruebas->setText(c.Caption_Corregir);
    CmdCarga_Lee->setEnabled(c.CmdCarga_Lee_Enabled);
    CmdCorregir_Pruebas->setEnabled(c.CmdCorregir_Pruebas_Enabled);
    lbl_CantidadHojas->setText(QString::number(c.lbl_CantidadHojas));
    lbl_CantidadHojas->setStyleSheet(c.lbl_CantidadHojas_Rojo ? QStringLiteral("color: red")
                                                              : QString());
    lbl_Leidas->setText(QString::number(c.lbl_Leidas));
    TxtForma->setText(c.c.TxtForma);
    TxtRut->setText(c.c.TxtRut);
    Txt_Rut_2->setText(c.Txt_Rut_2);
    Progreso->setMaximum(std::max(1, c.lbl_CantidadHojas));
    Progreso->setValue(std::min(c.resumen.leidas, Progreso->maximum()));
    if (List1->count() != c.c.List1.size() ||
        (List1->count() && List1->item(0)->text() != c.c.List1.first())) {
        List1->clear();
        List1->addItems(c.c.List1);
    }
    Dibuja_Marcas();
}

// The sheet as shown, with a red box on each registration mark found.
void FrmImagen::Dibuja_Marcas() {
    if (hoja_.isNull()) return Picture2->clear();
    QPixmap copia = hoja_;
    QPainter pintor(&copia);
    pintor.setPen(QPen(Qt::red, 2));
    pintor.scale(escala_, escala_);
    const ResultadoHoja& h = corrida_.hoja;
    // (x, y) is a mark's top-left dark pixel.
    auto caja = [&](int x, int y) { pintor.drawRect(x - 8, y - 8, 44, 44); };
    for (const Marcas& m : h.filas) {
        if (m.X + m.X1 == 0) continue;
        caja(m.X, m.Y);
        caja(m.X1, m.Y1);
    }
    if (h.cuarta_y) caja(h.filas[2].X, h.cuarta_y);
    pintor.end();
    Picture2->setPixmap(copia);
}

void FrmImagen::Espera(double) {
    QCoreApplication::processEvents();
}

void FrmImagen::Descarga_Lista() {
    Descarga_Pantalla(QStringLiteral("frmCorrecPru"));
}

void FrmImagen::Cierra_Y_Muestra_Lista() {
    Descarga_Pantalla(QStringLiteral("FrmImagen"));
    Descarga_Pantalla(QStringLiteral("frmCorrecPru"));
    Muestra_Pantalla(QStringLiteral("frmCorrecPru"));
}
