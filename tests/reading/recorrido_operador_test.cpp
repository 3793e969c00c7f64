// The operator's paths through the application: from an empty store to the grades on the list,
// from a run with a doubtful rut and an unread form to their amendment, and from typed numbers,
// a typed key, a matrix and a copy to the grades they mean.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTableView>
#include <QTest>

#include "apoyo_corrida.h"
#include "app/estado.h"
#include "app/screens/mdi_main.h"
#include "grading/screens/frm_correc_pru.h"
#include "grading/screens/frm_modf_rut.h"
#include "masters/screens/frm_alumnos.h"
#include "masters/screens/frm_asignatura.h"
#include "masters/screens/frm_habilidad.h"
#include "masters/screens/frm_nivel_eva.h"
#include "masters/screens/frm_profesores.h"
#include "masters/screens/frm_tab_eje_tema.h"
#include "platform/base_datos.h"
#include "platform/screens/navegacion.h"
#include "reading/screens/frm_imagen.h"
#include "setup/screens/frm_gene_pru.h"
#include "setup/screens/frm_gene_simce_pru.h"
#include "setup/screens/frm_ing_manual.h"
#include "setup/screens/frm_matriz_resp_correc.h"
#include "support/operador.h"

namespace {

class Operador : public CorridaPrueba {
  protected:
    void TearDown() override {
        navegacion() = Navegacion{};
        CorridaPrueba::TearDown();
    }
    static QString Lista_Datos(const QString& nombre) {
        return QStringLiteral(ZORTA_DATOS_PRUEBA "/masters/") + nombre;
    }
    template <class Pantalla>
    void Carga(const QString& archivo, const QString& titulo) {
        Pantalla p;
        guion->EsperaArchivo(Lista_Datos(archivo));
        guion->Espera(titulo);
        p.CmdCarga_Click();
    }
    // Chooses the test of that number on the list, as a click on its row.
    frmCorrecPru* Elige(MdiMain& m, int id) {
        auto* lista = qobject_cast<frmCorrecPru*>(m.Muestra_Pantalla("frmCorrecPru"));
        for (int f = 1; f <= lista->SprPrincipal.MaxRows(); ++f)
            if (lista->SprPrincipal.Celda(f, 1).toInt() == id) lista->SprPrincipal_Click(f);
        return lista;
    }
    // The students' rows on the list: "rut:buenas/malas/omitidas/nota/forma", "/RM" when marked.
    static QStringList Filas(const frmCorrecPru& l) {
        QStringList filas;
        const Grilla& g = l.SprResulprucargada;
        for (int f = 1; f <= g.MaxRows(); ++f)
            filas << g.Celda(f, 7) + ":" +
                         QStringList{g.Celda(f, 2), g.Celda(f, 3), g.Celda(f, 4), g.Celda(f, 5),
                                     g.Celda(f, 6)}
                             .join("/") +
                         (g.Celda(f, 8) == "RM" ? "/RM" : "");
        return filas;
    }
    static void Llena_Pauta(FrmIngManual& f, int forma, const std::string& letras) {
        f.CmbNFormas->setCurrentIndex(forma - 1);
        for (int p = 1; p <= f.SprAlterPreg.MaxRows(); ++p)
            f.SprAlterPreg.FijaCelda(p, 2, QString(QChar(letras[(p - 1) % letras.size()])));
    }
};

// The key as the guide tells: on the cell of the first question, a letter and Enter, then the
// down arrow; a "." passes the question by with the arrow alone.
void Teclea_Pauta(QTableView& vista, int desde, const QString& letras) {
    Pulsa_Celda(vista, desde, 2);
    for (const QChar letra : letras) {
        QComboBox* lista = Lista_Abierta(vista);
        ASSERT_NE(lista, nullptr);
        if (letra != u'.') {
            QTest::keyClick(lista, letra.toLatin1());
            QTest::keyClick(lista, Qt::Key_Return);
            QCoreApplication::processEvents();
            QTest::keyClick(&vista, Qt::Key_Down);
        } else {
            QTest::keyClick(lista, Qt::Key_Down);
        }
        QCoreApplication::processEvents();
    }
}

// A rut of the student list loaded from tests/data (ALUMNO i, course by i % 3).
QString Rut_Lista(int i) {
    return Rut_Valido(10000000 + 7 * i);
}

}  // namespace

TEST_F(Operador, FromAnEmptyStoreToTheGradesOnTheList) {
    Carga<FrmProfesores>("profesores_150.xlsx", "Mantenedor de Profesores");
    Carga<FrmAsignatura>("asignaturas.xlsx", "Mantenedor de Asignaturas");
    Carga<FrmAlumnos>("alumnos_45.xlsx", "Mantenedor de Alumnos");
    Carga<FrmTabEjeTema>("ejes.xlsx", "Mantenedor de Ejes Tematicos");
    Carga<FrmHabilidad>("habilidades_1005.xlsx", "Mantenedor de HAbilidades");
    ASSERT_EQ(Valor("select count(*) from CURSOS").toInt(), 3);

    MdiMain m;
    m.Ejecuta("mnu_pru_gener");
    auto* nueva = static_cast<FrmGenePru*>(m.Pantalla("FrmGenePru"));
    ASSERT_NE(nueva, nullptr);
    nueva->CmbProfe->setCurrentIndex(2);
    nueva->CmbAsig->setCurrentIndex(nueva->CmbAsig->findText("MATEMÁTICA"));
    nueva->CmbCurso->setCurrentIndex(nueva->CmbCurso->findText("1° MEDIO A"));
    nueva->TxtNombre->setText("Ensayo de Matemática");
    nueva->CmbPreSelMul->setCurrentIndex(nueva->CmbPreSelMul->findText("40"));
    nueva->CmbNumForma->setCurrentIndex(nueva->CmbNumForma->findText("2"));
    nueva->CmbNunAlterxpreg->setCurrentIndex(nueva->CmbNunAlterxpreg->findText("5"));
    nueva->XPButAceptar_Click();
    const int id = estado().Id_Prueba_Actual;
    ASSERT_EQ(id, 1);

    // The key of form 1 from the creation screen; form 2 after choosing the test again.
    const std::string pauta[] = {"ABCDE", "EDCBA"};
    for (int forma = 1; forma <= 2; ++forma) {
        if (forma == 2) {
            Elige(m, id);
            m.Muestra_Pantalla("FrmIngManual");
        }
        auto* manual = static_cast<FrmIngManual*>(m.Pantalla("FrmIngManual"));
        ASSERT_NE(manual, nullptr);
        ASSERT_EQ(manual->SprAlterPreg.MaxRows(), 40);
        Llena_Pauta(*manual, forma, pauta[forma - 1]);
        guion->Espera("Graba Pauta Manual", vbOK);
        guion->Espera("Graba Pauta Manual");
        manual->XPButAceptar_Click();
    }

    // Every question of both forms tied to the axis and the skill.
    for (int forma = 1; forma <= 2; ++forma) {
        Elige(m, id);
        m.Ejecuta("Mnu_Matriz_Prueba");
        auto* matriz = static_cast<FrmMatrizRespCorrec*>(m.Pantalla("FrmMatrizRespCorrec"));
        matriz->CboFormas->setCurrentIndex(forma - 1);
        matriz->CboFormas_Click();
        QList<int> todas;
        for (int f = 1; f <= 40; ++f) todas << f;
        matriz->CmbEjetema->setCurrentIndex(matriz->CmbEjetema->findText("NÚMEROS"));
        matriz->vSEjeTemario_Seleccion(todas);
        matriz->CboDescripcion->setCurrentIndex(0);
        matriz->vSPregObjet_Seleccion(todas);
        guion->Espera("Ejes Tematicos");
        matriz->XPButActPond_Click();
        m.Descarga("FrmMatrizRespCorrec");
    }
    EXPECT_EQ(
        Valor(
            "select count(*) from NEW_EJE_TEMATICO where idprueba = 1 and eje_tematico = 'NÚMEROS'")
            .toInt(),
        80);

    // Three students' sheets, read from the scan folder.
    const QString a = Rut_Lista(6), b = Rut_Lista(9), c = Rut_Lista(12);
    Hoja("a.bmp", Hoja_Alumno(std::string(40, 'A'), 1, a));
    Hoja("b.bmp", Hoja_Alumno("EDCBA" + std::string(35, '.'), 2, b));
    Hoja("c.bmp", Hoja_Alumno(std::string(20, 'B') + std::string(20, 'N'), 1, c));
    Elige(m, id);
    m.Ejecuta("nme_nue_correc");
    auto* lector = static_cast<FrmImagen*>(m.Pantalla("FrmImagen"));
    ASSERT_NE(lector, nullptr);
    guion->Espera("Fin Coreccion");
    lector->CmdCorregir_Pruebas_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Se han Corregido la cantidad de 3 pruebas");
    EXPECT_TRUE(En_Carpeta().isEmpty());

    // Key "ABCDE" repeated: 40 A's give 8 right; 20 B's give 4, and 20 nulls show as wrong.
    frmCorrecPru* lista = Elige(m, id);
    QStringList filas = Filas(*lista);
    filas.sort();
    EXPECT_EQ(filas, QStringList({a + ":8/32/0/2/1", b + ":5/0/35/1.6/2", c + ":4/36/0/1.5/1"}));
}

TEST_F(Operador, ADoubtfulRutAndAnUnreadFormAreAmendedFromTheList) {
    Prueba(2, 10);
    Pauta(1, "ABCDEABCDE");
    Pauta(2, "EDCBAEDCBA");
    const QString bueno = Rut_Valido(15111222), sin_forma = Rut_Valido(16222334),
                  corregido = Rut_Valido(17333444);
    for (const QString& r : {bueno, sin_forma, corregido}) Alumno(r);
    Hoja("a.bmp", Hoja_Alumno("ABCDEABCDE", 1, bueno));
    Hoja("b.bmp", Hoja_Alumno("ABCDE.....", 2, "12345678-4"));
    Hoja("c.bmp", Hoja_Alumno("ABCDEABCDE", 0, sin_forma));

    MdiMain m;
    Elige(m, kPrueba);
    m.Ejecuta("nme_nue_correc");
    auto* lector = static_cast<FrmImagen*>(m.Pantalla("FrmImagen"));
    ASSERT_NE(lector, nullptr);
    // The doubtful rut: nobody is chosen from the list and the sheet is kept with its rut.
    guion->Espera("Valida Rut");
    guion->EsperaSoloRut("");
    guion->Espera("Correccion de prueba", vbCancel);
    guion->Espera("Fin Coreccion");
    lector->CmdCorregir_Pruebas_Click();
    EXPECT_EQ(guion->cajas[0].texto, "Rut Incorrecto... 12345678-4, ingrese Rut");
    EXPECT_EQ(guion->cajas.back().texto, "Se han Corregido la cantidad de 3 pruebas");

    frmCorrecPru* lista = Elige(m, kPrueba);
    const Grilla& g = lista->SprResulprucargada;
    int fila_rm = 0, fila_99 = 0;
    for (int f = 1; f <= g.MaxRows(); ++f) {
        if (g.Celda(f, 8) == "RM") fila_rm = f;
        if (g.Celda(f, 6) == "99") fila_99 = f;  // no result yet: the row has no rut in it
    }
    ASSERT_GT(fila_rm, 0);
    ASSERT_GT(fila_99, 0);
    EXPECT_EQ(g.BackColor(fila_rm, 1), ColorAmarillo);
    EXPECT_EQ(g.BackColor(fila_99, 6), ColorRojo);

    // The rut: a double click opens the amendment, where the right rut is typed.
    navegacion().modal = [&](const QString& n) {
        ASSERT_EQ(n, "FrmModfRut");
        FrmModfRut enmienda(&lista->SprResulprucargada);
        enmienda.TxtRutModificado->setText(corregido);
        enmienda.XPButModifica_Click();
    };
    lista->SprResulprucargada_DblClick(fila_rm);
    EXPECT_EQ(g.Celda(fila_rm, 7), corregido);
    EXPECT_EQ(Codigos(corregido, 2), Codigos_Alumno("ABCDE....."));

    // The form: the row of 99 explains itself; the operator, who knows the sheet from its
    // image, gives the form on the amendment screen.
    guion->Espera("Notas Alumnos");
    lista->SprResulprucargada_DblClick(fila_99);
    Estado& e = estado();
    e.Rut_Malo = e.Forma_Mala = false;
    e.Rut_Actual = sin_forma;
    FrmModfRut forma(&lista->SprResulprucargada);
    forma.CmbForma->setCurrentIndex(0);
    forma.XPButMoForma_Click();
    EXPECT_EQ(Resultado(sin_forma), QStringList{"10/0/0/0/100/7/1"});
    EXPECT_EQ(g.Celda(fila_99, 6), "1");

    // The grades on the list once it is loaded again; the amended rut keeps its grade, and its
    // row the form 0 that the amendment writes.
    QStringList filas = Filas(*Elige(m, kPrueba));
    filas.sort();
    EXPECT_TRUE(filas.contains(bueno + ":10/0/0/7/1"));
    EXPECT_TRUE(filas.contains(sin_forma + ":10/0/0/7/1"));
    EXPECT_TRUE(filas.contains(corregido + ":1/4/5/1.5/0")) << filas.join(" ").toStdString();
}

TEST_F(Operador, TypedNumbersAKeyAMatrixAndACopyReachTheGradesMeant) {
    Carga<FrmProfesores>("profesores_150.xlsx", "Mantenedor de Profesores");
    Carga<FrmAlumnos>("alumnos_45.xlsx", "Mantenedor de Alumnos");
    MdiMain m;
    m.show();
    const auto pauta = [&](int id) {
        return Valor(
                   "select group_concat(alternativa, '') from (select alternativa from "
                   "Resp_preguntas_pautas where idprueba = ? order by pregunta)",
                   {id})
            .toString();
    };

    // The minimum grade typed with a decimal comma: 1.5, read as 2 by the run.
    m.Ejecuta("Mnu_Nivel");
    auto* nivel = static_cast<FrmNivelEva*>(m.Pantalla("FrmNivelEva"));
    nivel->Cbo_Nota_Base->setCurrentText("1,5");
    guion->Espera("Niveles Calificación");
    nivel->XPButAceptar_Click();

    // A SIMCE test of 10 questions, its key typed with two questions passed by, then completed.
    m.Ejecuta("mnu_ens_simce");
    auto* simce = static_cast<FrmGeneSimcePru*>(m.Pantalla("FrmGeneSimcePru"));
    simce->CmbProfe->setCurrentIndex(2);
    simce->CmbCurso->setCurrentIndex(simce->CmbCurso->findText("1° MEDIO A"));
    simce->TxtNombre->setText("SIMCE Matemática");
    simce->CmbPreSelMul->setCurrentIndex(simce->CmbPreSelMul->findText("10"));
    simce->CmbNunAlterxpreg->setCurrentIndex(simce->CmbNunAlterxpreg->findText("5"));
    simce->CmbAsig->setCurrentIndex(simce->CmbAsig->findText("Matemática"));
    guion->Espera("Confirmación");
    simce->XPButAceptar_Click();
    auto* manual = static_cast<FrmIngManual*>(m.Pantalla("FrmIngManual"));
    ASSERT_NE(manual, nullptr);
    manual->CmbNFormas->setCurrentIndex(0);
    QTableView& teclado = *manual->findChild<QTableView*>("SprAlterPreg");
    Teclea_Pauta(teclado, 1, "ed.ba.dcba");
    guion->Espera("Ingreso Manual");
    manual->XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Existen alternativas en Blanco, verifique");
    Teclea_Pauta(teclado, 3, "c");
    Teclea_Pauta(teclado, 6, "e");
    guion->Espera("Graba Pauta Manual", vbOK);
    guion->Espera("Graba Pauta Manual");
    manual->XPButAceptar_Click();
    ASSERT_EQ(pauta(1), "5432154321");

    // No screen writes the code 7 of an omitted key question; the matrix must show it as "O"
    // and keep it when the cell is double-clicked and left. Saving gives it the code before.
    Ejecuta("update Resp_preguntas_pautas set alternativa = 7 where idprueba = 1 and pregunta = 3");
    Elige(m, 1);
    m.Ejecuta("Mnu_Matriz_Prueba");
    auto* matriz = static_cast<FrmMatrizRespCorrec*>(m.Pantalla("FrmMatrizRespCorrec"));
    QTableView& letras = *matriz->findChild<QTableView*>("vSMatzRespCorrec");
    Doble_Pulsa_Celda(letras, 3, 2);
    Pulsa_Celda(letras, 4, 1);
    EXPECT_EQ(matriz->vSMatzRespCorrec.Celda(3, 2), "O");
    guion->Espera("Ejes Tematicos");
    matriz->XPButActPond_Click();
    m.Descarga("FrmMatrizRespCorrec");
    EXPECT_EQ(pauta(1), "5442154321");

    // Test 2, the copy: the same key, and no base score.
    guion->Espera("Copia Prueba");
    Elige(m, 1)->XPButton1_Click();
    auto* copia = static_cast<FrmGeneSimcePru*>(m.Pantalla("FrmGeneSimcePru"));
    ASSERT_NE(copia, nullptr);
    copia->CmbProfe->setCurrentIndex(2);
    copia->CmbCurso->setCurrentIndex(copia->CmbCurso->findText("1° MEDIO A"));
    copia->TxtNombre->setText("SIMCE Matemática B");
    guion->Espera("Confirmación");
    copia->XPButAceptar_Click();
    EXPECT_EQ(pauta(2), "5442154321");
    EXPECT_EQ(Valor("select puntaje_base from prueba_rj where idprueba = 2").toInt(), 0);

    // The copy's sheets. Ten questions over a minimum of 2: 6 right give 4, each right answer
    // below adds a third, each above 0.75 (9 right: 4 + 2.25, rounded to even, 6.2).
    const QString a = Rut_Lista(6), b = Rut_Lista(9), c = Rut_Lista(12), d = Rut_Lista(15);
    Hoja("a.bmp", Hoja_Alumno("EDDBAEDCBA", 1, a));
    Hoja("b.bmp", Hoja_Alumno("EDCBAEDCBA", 1, b));
    Hoja("c.bmp", Hoja_Alumno("EDDBA.....", 1, c));
    Hoja("d.bmp", Hoja_Alumno("..........", 1, d));
    Elige(m, 2);
    m.Ejecuta("nme_nue_correc");
    guion->Espera("Fin Coreccion");
    static_cast<FrmImagen*>(m.Pantalla("FrmImagen"))->CmdCorregir_Pruebas_Click();
    QStringList filas = Filas(*Elige(m, 2));
    filas.sort();
    EXPECT_EQ(filas, QStringList({a + ":10/0/0/7/1", b + ":9/1/0/6.2/1", c + ":5/0/5/3.7/1",
                                  d + ":0/0/10/2/1"}));
}
