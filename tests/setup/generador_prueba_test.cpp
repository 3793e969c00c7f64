// Creating tests of the three types, and finishing the copy of one.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "app/estado.h"
#include "app/screens/mdi_main.h"
#include "platform/base_datos.h"
#include "platform/numeros.h"
#include "platform/screens/navegacion.h"
#include "setup/screens/frm_gene_pru.h"
#include "setup/screens/frm_gene_psu_pru.h"
#include "setup/screens/frm_gene_simce_pru.h"
#include "support/base_temporal.h"

namespace {

class Creacion : public BaseArrancada {
  protected:
    void SetUp() override {
        BaseArrancada::SetUp();
        navegacion().muestra = [this](const QString& n) {
            pedidas << n;
            return nullptr;
        };
    }
    void TearDown() override {
        navegacion() = Navegacion{};
        BaseTemporal::TearDown();
    }
    void Listas() {
        Ejecuta("insert into Profesores values ('Ana Díaz', '1')");
        Ejecuta("insert into Asignaturas values (1, 'Historia')");
        Ejecuta("insert into CURSOS values ('4° Medio A', 14, 1)");
    }
    static void Elige(QComboBox* c, const QString& texto) {
        c->setCurrentIndex(c->findText(texto));
    }
    QString Fila(int id) {
        Recordset rs =
            estado().BaseDatos->OpenRecordset("select * from prueba_rj where idprueba = ?", {id});
        QStringList c;
        for (int i = 0; i < rs.FieldCount(); ++i) c << rs[i].toString();
        return c.join("|");
    }
    QStringList pedidas;
};

}  // namespace

TEST_F(Creacion, EmptyListsStopTheScreenAndTheNumberIsUsedAllTheSame) {
    MdiMain m;
    guion->Espera("Genera Pruebas");
    m.Ejecuta("mnu_pru_gener");
    EXPECT_EQ(guion->cajas.back().texto,
              "La tabla de Profesores esta vacia, ingrese los datos he intente de nuevo");
    EXPECT_FALSE(estado().Pantalla_Valida);
    EXPECT_EQ(m.Pantalla("FrmGenePru"), nullptr) << "no window is left behind";
    Ejecuta("insert into Profesores values ('Ana', '1')");
    guion->Espera("Genera Pruebas");
    FrmGenePru f;
    EXPECT_EQ(guion->cajas.back().texto,
              "La tabla de Asignaturas esta vacia, ingrese los datos he intente de nuevo");
    Ejecuta("insert into Asignaturas values (1, 'Historia')");
    guion->Espera("Genera Pruebas");
    FrmGenePru g;
    EXPECT_EQ(guion->cajas.back().texto,
              "La tabla de Cursos esta vacia, cargue los Alumnos he intente de nuevo");
    EXPECT_EQ(Valor("select valor_indice from indice_general where tipo_indice = 'PRUEBA'").toInt(),
              3);
}

TEST_F(Creacion, BlanksAreRefusedInTheScreensOrder) {
    Listas();
    FrmGenePru f;
    EXPECT_TRUE(estado().Pantalla_Valida);
    EXPECT_EQ(f.TxtNum->text(), "1");
    const std::vector<std::function<void()>> llena = {
        [&] { Elige(f.CmbProfe, "Ana Díaz"); },   [&] { Elige(f.CmbAsig, "Historia"); },
        [&] { Elige(f.CmbCurso, "4° Medio A"); }, [&] { f.TxtNombre->setText("   "); },
        [&] { Elige(f.CmbPreSelMul, "40"); },     [&] { Elige(f.CmbNumForma, "2"); },
        [&] { Elige(f.CmbNunAlterxpreg, "4"); }};
    for (const auto& paso : llena) {
        guion->Espera("Generación de Prueba General");
        f.XPButAceptar_Click();
        EXPECT_EQ(guion->cajas.back().texto, "Complete los item en blanco");
        paso();
    }
    EXPECT_EQ(Valor("select count(*) from prueba_rj").toInt(), 0);
    f.XPButAceptar_Click();
    // A name of spaces passes the check and is stored cut; the key goes on by screen.
    EXPECT_EQ(Fila(1), "1||GENERAL|Ana Díaz|Historia|4° Medio A|2|" +
                           Fecha_Texto(QDate::currentDate()) + "|40|0|4|N|");
    const Estado& e = estado();
    EXPECT_EQ(e.Id_Prueba_Actual, 1);
    EXPECT_EQ(e.Numero_Formas_Actual, 2);
    EXPECT_EQ(e.Preguntas_Actual, 40);
    EXPECT_EQ(e.Ptje_Max_Actual, 4) << "the alternatives, until the test is chosen on the list";
    EXPECT_EQ(e.Alternativas_Actual, 4);
    EXPECT_FALSE(e.Lee_Pauta);
    EXPECT_EQ(pedidas, QStringList{"FrmIngManual"});
}

TEST_F(Creacion, KeyBySheetGoesToTheReadingScreen) {
    Listas();
    FrmGenePru f;
    Elige(f.CmbProfe, "Ana Díaz");
    Elige(f.CmbAsig, "Historia");
    Elige(f.CmbCurso, "4° Medio A");
    f.TxtNombre->setText("Guía de O'Higgins");
    Elige(f.CmbPreSelMul, "30");
    Elige(f.CmbNumForma, "1");
    Elige(f.CmbNunAlterxpreg, "5");
    f.OptIngrPautOptica->setChecked(true);
    estado().Seteo_Hoja = true;
    f.XPButAceptar_Click();
    EXPECT_EQ(Valor("select NombrePrueba from prueba_rj").toString(), "Guía de O'Higgins");
    EXPECT_TRUE(estado().Lee_Pauta);
    EXPECT_FALSE(estado().Seteo_Hoja);
    EXPECT_EQ(pedidas, QStringList{"FrmImagen"});
}

TEST_F(Creacion, APsuTestHasOneFormAndTheQuestionsOfItsDefinition) {
    Ejecuta("insert into Profesores values ('Ana Díaz', '1')");
    Ejecuta("insert into CURSOS values ('4° Medio A', 14, 1)");
    guion->Espera("Ingreso Pruebas PSU");
    FrmGenePsuPru vacio;
    EXPECT_EQ(
        guion->cajas.back().texto,
        "No existen priebas PSU creadas, favor Ingreselas en Base de Datos \\ Mantenedor PSU");
    EXPECT_FALSE(vacio.XPButAceptar->isEnabled());

    Ejecuta("insert into Puntajes_PSU_NEW values (1, 'Matemática', 'PSU', 75, 'NO', 0, 150, 850)");
    FrmGenePsuPru f;
    EXPECT_TRUE(f.CmbNumForma->count() == 4);
    Elige(f.CmbProfe, "Ana Díaz");
    f.CmbAsig->setCurrentIndex(0);
    f.CmbAsig_Click();
    EXPECT_EQ(f.TxtNumeroPreguntas->text(), "75");
    EXPECT_EQ(f.CmbPreSelMul->currentText(), "75");
    Elige(f.CmbCurso, "4° Medio A");
    f.TxtNombre->setText("Ensayo 1");
    Elige(f.CmbNunAlterxpreg, "5");
    Elige(f.CmbNumForma, "3");
    Elige(f.CmbPuntBase, "3");
    f.XPButAceptar_Click();
    EXPECT_EQ(Fila(2), "2|Ensayo 1|PSU|Ana Díaz|Matemática|4° Medio A|1|" +
                           Fecha_Texto(QDate::currentDate()) + "|75|3|5|N|1");
    EXPECT_EQ(estado().Numero_Formas_Actual, 1);
}

TEST_F(Creacion, SimceConfirmsAndOffersItsFixedSubjects) {
    Ejecuta("insert into Profesores values ('Ana Díaz', '1')");
    Ejecuta("insert into CURSOS values ('4° Básico A', 6, 1)");
    FrmGeneSimcePru f;
    EXPECT_EQ(f.CmbAsig->count(), 7);
    EXPECT_EQ(f.CmbNiveles->count(), 3);
    EXPECT_EQ(f.CmbNunAlterxpreg->count(), 3);
    Elige(f.CmbProfe, "Ana Díaz");
    Elige(f.CmbCurso, "4° Básico A");
    f.TxtNombre->setText("SIMCE 4");
    Elige(f.CmbNunAlterxpreg, "4");
    Elige(f.CmbPreSelMul, "35");
    guion->Espera("Generador de pruebas SIMCE");
    f.XPButAceptar_Click();  // the subject is looked at last
    Elige(f.CmbAsig, "Matemática");
    guion->Espera("Confirmación");
    f.XPButAceptar_Click();
    EXPECT_EQ(
        guion->cajas.back().texto,
        "Los Datos inicial han sido grabados con éxito,\rdesea ingresar la pauta de la prueba");
    EXPECT_EQ(Valor("select Asignatura || '/' || Numero_Forma || '/' || formas from prueba_rj")
                  .toString(),
              "Matemática/1/1");
}

TEST_F(Creacion, ACopyTakesTheKeyAndAxesOfEveryForm) {
    Listas();
    Ejecuta(
        "insert into prueba_rj values (4, 'Original', 'GENERAL', 'Ana Díaz', 'Historia', '4° Medio "
        "A', 3, "
        "'01-03-2026', 2, 0, 4, 'S', null)");
    for (int forma = 1; forma <= 3; ++forma)
        for (int p = 1; p <= 2; ++p) {
            Ejecuta("insert into Resp_preguntas_pautas values (4, ?, ?, ?)", {p, forma, forma});
            Ejecuta("insert into NEW_EJE_TEMATICO values (?, 4, ?, 'Eje', 'Hab', ?, 'GENERAL')",
                    {forma * 10 + p, p, forma});
        }
    Estado& e = estado();
    e.Copia_Activa = true;
    e.Id_Prueba_Origen = e.Id_Prueba_Actual = 4;
    e.Id_Prueba_Copia = 9;
    e.Numero_Formas_Actual = 3;
    FrmGenePru f;
    EXPECT_EQ(f.TxtNum->text(), "9");
    EXPECT_FALSE(f.CmbNumForma->isEnabled());
    EXPECT_EQ(f.CmbPreSelMul->currentText(), "2");
    EXPECT_TRUE(f.FraForingmatriz->isHidden());
    Elige(f.CmbProfe, "Ana Díaz");
    Elige(f.CmbCurso, "4° Medio A");
    f.TxtNombre->setText("Copia");
    guion->Espera("Confirmación");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Los datos iniciales han sido grabados con éxito..");
    EXPECT_EQ(
        Valor("select ingreso_pauta || Numero_Forma from prueba_rj where idprueba = 9").toString(),
        "S3");
    EXPECT_EQ(
        Valor("select count(distinct forma) from Resp_preguntas_pautas where idprueba = 9").toInt(),
        3);
    EXPECT_EQ(
        Valor("select count(distinct forma) from NEW_EJE_TEMATICO where idprueba = 9").toInt(), 3);
    EXPECT_FALSE(e.Copia_Activa);
}

TEST_F(Creacion, ASimceCopyStoresBaseScoreZero) {
    Listas();
    Ejecuta(
        "insert into prueba_rj values (4, 'Original', 'SIMCE', 'Ana Díaz', 'Matemática', '4° Medio "
        "A', 1, "
        "'01-03-2026', 2, 3, 4, 'S', 1)");
    Estado& e = estado();
    e.Copia_Activa = true;
    e.Id_Prueba_Origen = e.Id_Prueba_Actual = 4;
    e.Id_Prueba_Copia = 9;
    e.Numero_Formas_Actual = 1;
    FrmGeneSimcePru f;
    Elige(f.CmbProfe, "Ana Díaz");
    Elige(f.CmbCurso, "4° Medio A");
    f.TxtNombre->setText("Copia");
    Elige(f.CmbPuntBase, "3");
    guion->Espera("Confirmación");
    f.XPButAceptar_Click();
    EXPECT_EQ(Valor("select puntaje_base from prueba_rj where idprueba = 9").toInt(), 0);
}
