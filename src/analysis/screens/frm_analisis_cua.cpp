// FrmAnalisis_Cua, "Analisis Cuantitativo Prueba".
#include "analysis/screens/frm_analisis_cua.h"

#include <QDate>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>

#include "analysis/analisis_curso.h"
#include "analysis/exporta_planilla.h"
#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"
#include "platform/screens/controles.h"
#include "platform/screens/impresion.h"
#include "platform/screens/vista_grafico.h"

FrmAnalisis_Cua::FrmAnalisis_Cua(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("FrmAnalisis_Cua"));
    setWindowTitle(QStringLiteral("Analisis Cuantitativo Prueba"));
    auto* identidad = new QFormLayout;
    LblPrueba = new QLabel(this);
    LblProfesor = new QLabel(this);
    LblAsignatura = new QLabel(this);
    LblCurso = new QLabel(this);
    identidad->addRow(QStringLiteral("Prueba:"), LblPrueba);
    identidad->addRow(QStringLiteral("Profesor:"), LblProfesor);
    identidad->addRow(QStringLiteral("Asignatura:"), LblAsignatura);
    identidad->addRow(QStringLiteral("Curso:"), LblCurso);
    auto* vista = Vista_Grilla(this, QStringLiteral("SprResulprucargada"), SprResulprucargada, {});
    vista->verticalHeader()->hide();
    vista->setColumnWidth(3, 10);
    vista->setColumnWidth(4, 260);
    auto* izquierda = new QVBoxLayout;
    izquierda->addLayout(identidad);
    izquierda->addWidget(vista, 1);
    auto* cuerpo = new QHBoxLayout(this);
    cuerpo->addLayout(izquierda, 3);
    cuerpo->addWidget(new VistaGrafico(MSChart1, this), 3);
    cuerpo->addLayout(
        Columna_Botones(this, {
                                  {"XPButton1", "Grafico Linea", [this] { XPButton1_Click(); }},
                                  {"XPButton2", "Grafico Barra", [this] { XPButton2_Click(); }},
                                  {"XPButton3", "Exportar Excel", [this] { XPButton3_Click(); }},
                                  {"XPButton4", "Imprimir", [this] { XPButton4_Click(); }},
                                  {"XPButCancelar", "Salir", [this] { close(); }},
                              }));
    // 13050 by 6885 twips.
    resize(870, 459);
    Ejecutar_Comando([this] { Form_Load(); });
}

void FrmAnalisis_Cua::Form_Load() {
    const Estado& e = estado();
    const int16_t id = e.Id_Prueba_Actual;
    if (id == 0) {
        dialogos().MsgBox(QStringLiteral("No tiene numero de prueba asociado, selecione una "
                                         "prueba para visualizar"),
                          vbExclamation, QStringLiteral("Analisis Cualitativo"));
        return;
    }
    Carga_Curso();
    LblPrueba->setText(e.Nombre_Prueba_Actual);
    LblProfesor->setText(e.Profesor_Actual);
    LblAsignatura->setText(e.Asignatura_Actual);
    LblCurso->setText(e.Curso_Actual);
    setWindowTitle(QStringLiteral("Analisis Cuantitativo Prueba --- > ") + CStr(id) +
                   QStringLiteral(" <---"));
}

void FrmAnalisis_Cua::Cambia_Tipo(int tipo) {
    MSChart1.chartType = tipo;
    MSChart1.Refresh();
}

void FrmAnalisis_Cua::XPButton1_Click() {
    Cambia_Tipo(GraficoBarras2D);
}
void FrmAnalisis_Cua::XPButton2_Click() {
    Cambia_Tipo(GraficoBarras3D);
}

void FrmAnalisis_Cua::XPButton3_Click() {
    Exporta_Con_Dialogo(SprResulprucargada, 2, {&MSChart1, nullptr});
}

void FrmAnalisis_Cua::XPButton4_Click() {
    Imprime_Grilla(SprResulprucargada, QStringLiteral("Analisis Cuantitativo Curso"), 2,
                   {1440, 900, 720, 600});
}
