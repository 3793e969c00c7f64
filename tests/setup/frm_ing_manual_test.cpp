// Typing a key: the checks, one form at a time, the overwrite question.
#include "setup/screens/frm_ing_manual.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QTableView>

#include "app/estado.h"
#include "grading/screens/frm_correc_pru.h"
#include "platform/base_datos.h"
#include "platform/screens/navegacion.h"
#include "setup/screens/frm_opc_pautas.h"
#include "support/base_temporal.h"
#include "support/operador.h"

namespace {

class IngresoManual : public BaseArrancada {
  protected:
    void SetUp() override {
        BaseArrancada::SetUp();
        Estado& e = estado();
        e.Id_Prueba_Actual = 6;
        e.Preguntas_Actual = 100;
        e.Numero_Formas_Actual = 2;
        e.Ptje_Max_Actual = 4;
        estado().BaseDatos->Execute(
            "insert into prueba_rj (IdPrueba, ingreso_pauta) values (6, 'N')");
        navegacion().muestra = [this](const QString& n) {
            pedidas << n;
            return nullptr;
        };
        navegacion().descarga = [this](const QString& n) { pedidas << "descarga " + n; };
    }
    void TearDown() override {
        navegacion() = Navegacion{};
        BaseTemporal::TearDown();
    }
    void Llena(FrmIngManual& f, const QString& letras) {
        for (int i = 1; i <= f.SprAlterPreg.MaxRows(); ++i)
            f.SprAlterPreg.FijaCelda(i, 2, letras.mid((i - 1) % letras.size(), 1));
    }
    QString Pauta(int forma) {
        return Valor(
                   "select group_concat(alternativa, '') from (select alternativa from "
                   "Resp_preguntas_pautas "
                   "where idprueba = 6 and forma = ? order by pregunta)",
                   {forma})
            .toString();
    }
    QStringList pedidas;
};

}  // namespace

TEST_F(IngresoManual, WithoutATestTheScreenStaysEmpty) {
    estado().Id_Prueba_Actual = 0;
    guion->Espera("Ingreso manual de Pruebas");
    FrmIngManual f;
    EXPECT_EQ(guion->cajas.back().texto,
              "Debe tener asociado un Numero de Prueba para el Ingreso manual");
    EXPECT_EQ(f.SprAlterPreg.MaxRows(), 0);
}

TEST_F(IngresoManual, ABlankInTheLastRowStopsEverything) {
    FrmIngManual f;
    EXPECT_EQ(estado().Lista_Alternativas, "A\tB\tC\tD");
    EXPECT_EQ(f.CmbNFormas->count(), 2);
    guion->Espera("Ingreso Manual");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Debe selecionar una forma, verifique");
    f.CmbNFormas->setCurrentIndex(0);
    Llena(f, "ABCD");
    f.SprAlterPreg.FijaCelda(100, 2, "");
    guion->Espera("Ingreso Manual");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Existen alternativas en Blanco, verifique");
    EXPECT_EQ(Valor("select count(*) from Resp_preguntas_pautas").toInt(), 0);
}

TEST_F(IngresoManual, ABlankCellClickedAndLeftStaysBlank) {
    estado().Preguntas_Actual = 3;
    FrmIngManual f;
    Mostrada mostrada(f);
    QTableView& vista = *f.findChild<QTableView*>("SprAlterPreg");
    f.CmbNFormas->setCurrentIndex(0);
    f.SprAlterPreg.FijaCelda(1, 2, "B");
    f.SprAlterPreg.FijaCelda(3, 2, "C");
    Pulsa_Celda(vista, 2, 2);
    ASSERT_NE(Lista_Abierta(vista), nullptr);
    Pulsa_Celda(vista, 3, 1);
    EXPECT_EQ(f.SprAlterPreg.Celda(2, 2), "");
    guion->Espera("Ingreso Manual");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Existen alternativas en Blanco, verifique");
    EXPECT_EQ(Pauta(1), "");
}

TEST_F(IngresoManual, EachFormIsStoredOnItsOwnAndTheKeyCountsAsEntered) {
    estado().Preguntas_Actual = 4;
    {
        FrmIngManual f;
        f.CmbNFormas->setCurrentIndex(0);
        Llena(f, "ABCD");
        guion->Espera("Graba Pauta Manual", vbCancel);
        f.XPButAceptar_Click();
        EXPECT_EQ(Pauta(1), "");
        guion->Espera("Graba Pauta Manual", vbOK);
        guion->Espera("Graba Pauta Manual");
        f.XPButAceptar_Click();
        EXPECT_EQ(guion->cajas.back().texto,
                  "La pauta manual para la prueba 6 ha sido grabado con éxito");
    }
    EXPECT_EQ(estado().Numero_Formas_Actual, 1) << "the form saved, until the test is chosen again";
    estado().Numero_Formas_Actual = 2;
    FrmIngManual f;
    f.CmbNFormas->setCurrentIndex(1);
    Llena(f, "DCBA");
    guion->Espera("Graba Pauta Manual", vbOK);
    guion->Espera("Graba Pauta Manual");
    f.XPButAceptar_Click();
    EXPECT_EQ(Pauta(1), "1234");
    EXPECT_EQ(Pauta(2), "4321");
    EXPECT_EQ(estado().Numero_Formas_Actual, 2);
    EXPECT_EQ(Valor("select ingreso_pauta from prueba_rj").toString(), "S");
    EXPECT_TRUE(pedidas.contains("descarga frmCorrecPru"));
}

TEST_F(IngresoManual, RefusingTheOverwriteStillMarksTheKeyAndCloses) {
    estado().Preguntas_Actual = 2;
    estado().BaseDatos->Execute("insert into Resp_preguntas_pautas values (6, 1, 1, 3)");
    estado().BaseDatos->Execute("update prueba_rj set ingreso_pauta = 'N'");
    FrmIngManual f;
    f.CmbNFormas->setCurrentIndex(0);
    Llena(f, "AB");
    guion->Espera("Graba Pauta Manual", vbOK);
    guion->Espera("Creación de Pautas y Pruebas", vbCancel);
    guion->Espera("Graba Pauta Manual");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas[1].texto,
              "Esto Código de Prueba y Forma ya existe, desea regrabar los datos");
    EXPECT_EQ(Pauta(1), "3");
    EXPECT_EQ(Valor("select ingreso_pauta from prueba_rj").toString(), "S");
    FrmIngManual g;
    g.CmbNFormas->setCurrentIndex(0);
    Llena(g, "AB");
    guion->Espera("Graba Pauta Manual", vbOK);
    guion->Espera("Creación de Pautas y Pruebas", vbOK);
    guion->Espera("Graba Pauta Manual");
    g.XPButAceptar_Click();
    EXPECT_EQ(Pauta(1), "12");
}

TEST_F(IngresoManual, HandOverCopiesTheChosenTestOfTheList) {
    estado().BaseDatos->Execute(
        "update prueba_rj set NombrePrueba = 'Química', NombreProfesor = 'Luis', curso = '3° "
        "Medio', "
        "TipoPrueba = 'GENERAL', Asignatura = 'Ciencias', Numero_Forma = 2, Numero_Alternativas = "
        "4, "
        "Pregunta_Seleccion = 100");
    frmCorrecPru lista;
    lista.SprPrincipal_Click(1);
    navegacion().abierta = [&](const QString& n) -> QWidget* {
        return n == "frmCorrecPru" ? &lista : nullptr;
    };
    FrmOPCPautas opciones;
    opciones.OptIngpautpantalla->setChecked(true);
    opciones.XPButAceptar_Click();
    EXPECT_EQ(pedidas, QStringList({"descarga frmCorrecPru", "descarga FrmGenePru", "FrmIngManual",
                                    "descarga frmCorrecPru"}));
    FrmIngManual f;
    EXPECT_EQ(f.Etiqueta("LblProfesor")->text(), "Luis");
    EXPECT_EQ(f.Etiqueta("LblAsig")->text(), "Ciencias");
    EXPECT_EQ(f.Etiqueta("LblNAlternativa")->text(), "4");
    EXPECT_EQ(f.CmbNunPreg->currentText(), "100");

    FrmOPCPautas optica;
    optica.OptIngrPautOptica->setChecked(true);
    optica.XPButAceptar_Click();
    EXPECT_TRUE(estado().Lee_Pauta);
    EXPECT_FALSE(optica.OptIngrPautOptica->isChecked());
    EXPECT_EQ(pedidas.mid(4), QStringList({"FrmImagen", "descarga frmCorrecPru"}));
}
