// The correction evaluation: its layout, one student's sheet, the export and the printout.
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

#include "analysis/exporta_planilla.h"
#include "app/estado.h"
#include "grading/enmienda_notas.h"
#include "grading/screens/frm_eva_correcion.h"
#include "grading/screens/piezas.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/screens/controles.h"
#include "platform/screens/impresion.h"
#include "platform/screens/lista_clave.h"

namespace {

QLineEdit* Campo(QWidget* padre, const QString& texto) {
    auto* c = new QLineEdit(texto, padre);
    c->setReadOnly(true);
    c->setMaximumWidth(50);
    return c;
}

}  // namespace

void FrmEvaCorrecion::Construye() {
    CboAlumnos = new QComboBox(this);
    auto* datos = new QFormLayout;
    const auto etiqueta = [&](const QString& titulo) {
        auto* l = new QLabel(this);
        datos->addRow(titulo, l);
        return l;
    };
    LblPrueba = etiqueta(QStringLiteral("Prueba:"));
    LblAsignatura = etiqueta(QStringLiteral("Asignatura:"));
    LblCurso = etiqueta(QStringLiteral("Curso:"));
    LblProfesor = etiqueta(QStringLiteral("Profesor:"));
    LblFecha = etiqueta(QStringLiteral("Fecha:"));
    LblMinima = etiqueta(QStringLiteral("Nota mínima:"));
    LblMaxima = etiqueta(QStringLiteral("Nota máxima:"));
    LblPromedio = etiqueta(QStringLiteral("Promedio:"));
    Lbl_Desviacion = etiqueta(QStringLiteral("Desviación estándar:"));
    datos->addRow(Panel_Escala());
    datos->addRow(QStringLiteral("Alumno:"), CboAlumnos);
    datos->addRow(Boton(this, QStringLiteral("XPButton4"), QStringLiteral("Eliminar Alumno"),
                        [this] { XPButton4_Click(); }));
    datos->addRow(Boton(this, QStringLiteral("XPButton1"), QStringLiteral("Exportar Excel"),
                        [this] { XPButton1_Click(); }));
    datos->addRow(Boton(this, QStringLiteral("XPButton2"), QStringLiteral("Imprimir"),
                        [this] { XPButton2_Click(); }));
    auto* tabla = Vista_Lectura(SprEvaCorrec, this);
    auto* alumno = Vista_Lectura(SpsSoloAlumno, this);
    for (QTableView* v : {tabla, alumno}) v->setSelectionBehavior(QAbstractItemView::SelectRows);
    auto* grillas = new QVBoxLayout;
    grillas->addWidget(tabla, 2);
    grillas->addWidget(alumno, 1);
    auto* capa = new QHBoxLayout(this);
    capa->addLayout(grillas, 1);
    capa->addLayout(datos);
    connect(tabla, &QTableView::clicked, this,
            [this](const QModelIndex& i) { Fila_Activa = i.row() + 1; });
    connect(CboAlumnos, &QComboBox::activated, this,
            [this] { Ejecutar_Comando([this] { CboAlumnos_Click(); }); });
    resize(1200, 700);
}

// The two percentages with their steps, and the stored ones beside them.
QWidget* FrmEvaCorrecion::Panel_Escala() {
    auto* panel = new QWidget(this);
    XminText = Campo(panel, QStringLiteral("60"));
    XmaxText = Campo(panel, QStringLiteral("100"));
    Txt_Minima_4 = Campo(panel, QString());
    Txt_Maxima_7 = Campo(panel, QString());
    auto* capa = new QGridLayout(panel);
    capa->addWidget(new QLabel(QStringLiteral("% para nota 4"), panel), 0, 0);
    capa->addWidget(Boton(panel, QStringLiteral("CmdAbajo1"), QStringLiteral("-"),
                          [this] { CmdAbajo1_Click(); }),
                    0, 1);
    capa->addWidget(XminText, 0, 2);
    capa->addWidget(
        Boton(panel, QStringLiteral("CmdArri4"), QStringLiteral("+"), [this] { CmdArri4_Click(); }),
        0, 3);
    capa->addWidget(new QLabel(QStringLiteral("% para nota 7"), panel), 1, 0);
    capa->addWidget(Boton(panel, QStringLiteral("CmdAbajo2"), QStringLiteral("-"),
                          [this] { CmdAbajo2_Click(); }),
                    1, 1);
    capa->addWidget(XmaxText, 1, 2);
    capa->addWidget(
        Boton(panel, QStringLiteral("CmdArri6"), QStringLiteral("+"), [this] { CmdArri6_Click(); }),
        1, 3);
    capa->addWidget(new QLabel(QStringLiteral("Ajuste de Nota 4"), panel), 2, 0);
    capa->addWidget(Txt_Minima_4, 2, 2);
    capa->addWidget(new QLabel(QStringLiteral("Ajuste de Nota 7"), panel), 3, 0);
    capa->addWidget(Txt_Maxima_7, 3, 2);
    capa->addWidget(
        Boton(panel, QStringLiteral("CmdGrabaNuevaNota"), QStringLiteral("Grabar Nuevas Notas"),
              [this] { CmdGrabaNuevaNota_Click(); }),
        4, 0, 1, 4);
    return panel;
}

// The student's figures, then each answer against the key of the student's form.
void FrmEvaCorrecion::CboAlumnos_Click() {
    const QString rut = Item_Lista(*CboAlumnos).section(QLatin1Char('@'), -1);
    int f = 1;
    while (f < SprEvaCorrec.MaxRows() && SprEvaCorrec.Celda(f, 2) != rut) ++f;
    const QStringList datos = {QStringLiteral("RUT"),           rut,
                               QStringLiteral("NOMBRE"),        SprEvaCorrec.Celda(f, 3),
                               QStringLiteral("BUENAS"),        SprEvaCorrec.Celda(f, 4),
                               QStringLiteral("MALAS"),         SprEvaCorrec.Celda(f, 5),
                               QStringLiteral("OMITIDAS"),      SprEvaCorrec.Celda(f, 6),
                               QStringLiteral("PUNTAJE"),       SprEvaCorrec.Celda(f, 8),
                               QStringLiteral("RENDIMIENTOS"),  SprEvaCorrec.Celda(f, 9),
                               QStringLiteral("NOTA"),          SprEvaCorrec.Celda(f, 11),
                               QStringLiteral("NOMBRE PRUEBA"), LblPrueba->text(),
                               QStringLiteral("ASIGNATURA"),    LblAsignatura->text(),
                               QStringLiteral("CURSO"),         LblCurso->text(),
                               QStringLiteral("PROFESOR"),      LblProfesor->text(),
                               QStringLiteral("FECHA"),         LblFecha->text()};
    Recordset rs = estado().BaseDatos->OpenRecordset(
        QStringLiteral("select r.alternativa, p.alternativa from respuesta_alumnos_por_rut r left "
                       "join Resp_preguntas_pautas p on p.idprueba = r.idprueba and p.forma = "
                       "r.forma and p.pregunta = r.pregunta where r.idprueba = ? and "
                       "r.rut_alumno = ? order by r.pregunta"),
        {estado().Id_Prueba_Actual, rut});
    const int cabeza = datos.size() / 2 + 1;
    SpsSoloAlumno.SetMaxRows(0);
    SpsSoloAlumno.SetMaxRows(cabeza + rs.RecordCount());
    for (int i = 0; i < datos.size() / 2; ++i) {
        SpsSoloAlumno.FijaCelda(i + 1, 1, datos[2 * i]);
        SpsSoloAlumno.FijaCelda(i + 1, 2, datos[2 * i + 1]);
    }
    SpsSoloAlumno.FijaCelda(cabeza, 1, QStringLiteral("ALTERNATIVAS ALUMNO"));
    SpsSoloAlumno.FijaCelda(cabeza, 2, QStringLiteral("PAUTA PRUEBA"));
    for (int i = cabeza + 1; !rs.Eof(); rs.MoveNext(), ++i) {
        const QString alumno = Letra_Alumno(rs[0]);
        const QString pauta = Letra_Pauta(rs[1]);
        SpsSoloAlumno.FijaCelda(i, 1, alumno);
        SpsSoloAlumno.FijaCelda(i, 2, pauta);
        SpsSoloAlumno.FijaCelda(i, 3,
                                alumno == QLatin1String("O")   ? QStringLiteral("OMITIDA")
                                : alumno == QLatin1String("N") ? QStringLiteral("NULA")
                                : alumno == pauta              ? QStringLiteral("BUENA")
                                                               : QStringLiteral("MALA"));
    }
}

void FrmEvaCorrecion::XPButton1_Click() {
    const QString titulo = QStringLiteral("Exportacion Excel");
    const QString ruta = dialogos().GuardarArchivo(
        titulo, QStringLiteral("Libro de Excel (*.xlsx)"), QStringLiteral("Correccion.xlsx"));
    if (ruta.trimmed().isEmpty()) return;
    Exportar_Excel_Correccion(ruta, SprEvaCorrec, Spr_Pauta_Respuesta, Txt_Minima_4->text(),
                              Txt_Maxima_7->text());
    dialogos().MsgBox(ruta + QStringLiteral(" Datos exportados en "), vbInformation, titulo);
}

void FrmEvaCorrecion::XPButton2_Click() {
    Imprime_Grilla(SprEvaCorrec, QStringLiteral("Correccion General"), 2, {720, 720, 720, 720});
}
