// Typing a student's answers by hand.
#include "grading/screens/frm_mod_nota.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

#include "app/estado.h"
#include "grading/enmienda_notas.h"
#include "grading/persistencia_respuestas.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"
#include "platform/screens/grilla_modelo.h"

namespace {

const QString kTitulo = QStringLiteral("Correccion Manual");

BaseDatos& Base() {
    return *estado().BaseDatos;
}
int16_t Id() {
    return estado().Id_Prueba_Actual;
}

QTableView* Vista(Grilla& g, QWidget* padre, bool editable) {
    auto* v = new QTableView(padre);
    auto* modelo = new GrillaModelo(g, v);
    if (editable) modelo->Editable(1);
    v->setModel(modelo);
    v->verticalHeader()->setDefaultSectionSize(22);
    return v;
}

}  // namespace

Frm_Mod_Nota::Frm_Mod_Nota(QWidget* padre) : QWidget(padre), Spr_Nota(Tabla_Nota_Manual()) {
    setObjectName(QStringLiteral("Frm_Mod_Nota"));
    setWindowTitle(QStringLiteral("Modifica Nota Manual"));
    SprNotas.FijaCelda(0, 1, QStringLiteral("Alternativa ALUMNO"));
    SprPauta.FijaCelda(0, 1, QStringLiteral("Alternativas PAUTA"));
    auto* datos = new QFormLayout;
    const auto etiqueta = [&](const QString& titulo) {
        auto* l = new QLabel(this);
        datos->addRow(titulo, l);
        return l;
    };
    Lbl_RUT_Alumno = etiqueta(QStringLiteral("Rut:"));
    Lbl_Nombre_Alumno = etiqueta(QStringLiteral("Alumno:"));
    LblPrueba = etiqueta(QStringLiteral("Prueba:"));
    LblAsignatura = etiqueta(QStringLiteral("Asignatura:"));
    LblCurso = etiqueta(QStringLiteral("Curso:"));
    LblProfesor = etiqueta(QStringLiteral("Profesor:"));
    const char* const textos[] = {"Grabar", "Eliminar Alumno", "Cancelar"};
    auto* botones = new QHBoxLayout;
    for (int i = 0; i < 3; ++i) {
        XPButton[i] = new QPushButton(QString::fromUtf8(textos[i]), this);
        XPButton[i]->setObjectName(QStringLiteral("XPButton_%1").arg(i));
        connect(XPButton[i], &QPushButton::clicked, this,
                [this, i] { Ejecutar_Comando([this, i] { XPButton_Click(i); }); });
        botones->addWidget(XPButton[i]);
    }
    auto* grillas = new QHBoxLayout;
    grillas->addWidget(Vista(SprNotas, this, true));
    grillas->addWidget(Vista(SprPauta, this, false));
    auto* capa = new QVBoxLayout(this);
    capa->addLayout(datos);
    capa->addLayout(grillas, 1);
    capa->addLayout(botones);
    resize(520, 640);
    Ejecutar_Comando([this] { Form_Load(); });
}

void Frm_Mod_Nota::Form_Load() {
    const Estado& e = estado();
    Lbl_RUT_Alumno->setText(e.Rut_Actual);
    Lbl_Nombre_Alumno->setText(Primer_Apellido(e.Rut_Actual));
    LblPrueba->setText(e.Nombre_Prueba_Actual);
    LblAsignatura->setText(e.Asignatura_Actual);
    LblCurso->setText(e.Curso_Actual);
    LblProfesor->setText(e.Profesor_Actual);
    Recordset pauta = Base().OpenRecordset(
        QStringLiteral("select alternativa from Resp_preguntas_pautas where idprueba = ? ORDER BY "
                       "PREGUNTA"),
        {Id()});
    SprPauta.SetMaxRows(pauta.RecordCount());
    SprNotas.SetMaxRows(pauta.RecordCount());
    for (int f = 1; !pauta.Eof(); pauta.MoveNext(), ++f)
        SprPauta.FijaCelda(f, 1, Letra_Pauta(pauta[0]));
    Recordset resp = Base().OpenRecordset(
        QStringLiteral(
            "select alternativa, forma from respuesta_alumnos_por_rut where idprueba = ? "
            "and rut_alumno = ? ORDER BY PREGUNTA"),
        {Id(), e.Rut_Actual});
    forma_ = resp.Eof() ? QVariant(1) : resp[1];
    for (int f = 1; !resp.Eof(); resp.MoveNext(), ++f) {
        const QString letra = Letra_Alumno(resp[0]);
        SprNotas.FijaCelda(f, 1, letra.isEmpty() ? QStringLiteral("   ") : letra);
    }
}

void Frm_Mod_Nota::XPButton_Click(int indice) {
    if (indice == Grabar) return Graba_Nota();
    if (indice == Eliminar) return Elimina_Alumno();
    close();
}

bool Frm_Mod_Nota::Valida_Respuestas() {
    for (int f = 1; f <= SprNotas.MaxRows(); ++f) {
        const QString texto = SprNotas.Celda(f, 1);
        if (Codigo_Alumno(texto.toUpper()) == 0) {
            dialogos().MsgBox(Lineas({QStringLiteral("El valor : ") + texto,
                                      QStringLiteral("en la respuesta : ") + CStr(f),
                                      QStringLiteral(" no corresponde, verifique")}),
                              vbExclamation, kTitulo);
            return false;
        }
    }
    return true;
}

void Frm_Mod_Nota::Graba_Nota() {
    if (!Valida_Respuestas()) return;
    const QString rut = estado().Rut_Actual;
    Transaccion t(Base());
    Elimina_Alumno_Prueba(rut, forma_);
    int buenas = 0, malas = 0, omitidas = 0, nulas = 0;
    for (int f = 1; f <= SprNotas.MaxRows(); ++f) {
        const QString letra = SprNotas.Celda(f, 1).toUpper();
        Base().Execute(QStringLiteral("insert into respuesta_alumnos_por_rut (IdPrueba, pregunta, "
                                      "Forma, Alternativa, RUT_Alumno) values (?, ?, ?, ?, ?)"),
                       {Id(), f, forma_, Codigo_Alumno(letra), rut});
        if (letra == SprPauta.Celda(f, 1))
            ++buenas;
        else if (letra == QLatin1String("N"))
            ++nulas;
        else if (letra == QLatin1String("O"))
            ++omitidas;
        else
            ++malas;
    }
    Graba_Resultado(buenas, malas, omitidas, nulas);
    t.Confirma();
    dialogos().MsgBox(QStringLiteral("La prueba ha sido modificada"), vbInformation, kTitulo);
    close();
}

// The grade is the table's line of the stored percentage, a whole number in its column.
void Frm_Mod_Nota::Graba_Resultado(int buenas, int malas, int omitidas, int nulas) {
    const int preguntas = SprNotas.MaxRows();
    const int32_t porcentaje = preguntas == 0 ? 0 : CLng(buenas * 100.0 / preguntas);
    QVariant nota;
    for (int f = 1; f <= Spr_Nota.MaxRows(); ++f)
        if (Val(Spr_Nota.Celda(f, 1)) == porcentaje)
            nota = Val(Spr_Nota.Celda(f, 2).replace(',', '.'));
    Base().Execute(
        QStringLiteral("insert into ResultadoAlumnos_rj (IdPrueba, Rut, Buenas, Malas, "
                       "Omitidas, Nulas, Puntaje, Nota, Logro, Porcentaje, Forma) "
                       "values (?, ?, ?, ?, ?, ?, 0, ?, 0, ?, ?)"),
        {Id(), estado().Rut_Actual, buenas, malas, omitidas, nulas, nota, porcentaje, forma_});
}

void Frm_Mod_Nota::Elimina_Alumno() {
    const QString titulo = QStringLiteral("Elimina Alumno Prueba");
    const QString rut = estado().Rut_Actual;
    const QString nombre = Lbl_Nombre_Alumno->text();
    const int r = dialogos().MsgBox(
        Lineas({QStringLiteral("Desea eliminar al alumno : "),
                QStringLiteral(" Nombre : ") + nombre, QStringLiteral(" y Rut : ") + rut}),
        vbOKCancel + vbQuestion, titulo);
    if (r != vbOK) return;
    Elimina_Alumno_Prueba(rut, forma_);
    dialogos().MsgBox(
        Lineas({QStringLiteral("El alumno "), QStringLiteral("Nombre : ") + nombre,
                QStringLiteral("Rut : ") + rut, QStringLiteral(" ha sido eliminado")}),
        vbInformation, titulo);
}
