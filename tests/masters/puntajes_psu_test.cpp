// PSU and SIMCE definitions, their score tables loaded from a spreadsheet, and the SIMCE range.
#include <gtest/gtest.h>
#include <xlsxwriter.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "apoyo_maestros.h"
#include "app/estado.h"
#include "masters/screens/frm_mant_psu.h"
#include "masters/screens/frm_mant_simce.h"
#include "masters/screens/frm_puntajes_psu.h"
#include "platform/base_datos.h"

namespace {

class Puntajes : public Maestros {
protected:
    // A workbook whose column B holds the scores of 0, 1, 2 ... right answers.
    QString Tabla(const QString& nombre, int filas) {
        const QString ruta = Ruta(nombre);
        lxw_workbook* libro = workbook_new(ruta.toLocal8Bit().constData());
        lxw_worksheet* hoja = workbook_add_worksheet(libro, nullptr);
        for (int r = 0; r < filas; ++r) worksheet_write_number(hoja, r, 1, 150 + 10 * r, nullptr);
        workbook_close(libro);
        return ruta;
    }
    void Define(int id, const QString& nombre, int preguntas, const QString& tipo = "PSU") {
        Valor("insert into Puntajes_PSU_NEW values (?, ?, ?, ?, 'NO', 0, 150, 850)", {id, nombre, tipo, preguntas});
    }
};

}  // namespace

TEST_F(Puntajes, DefinitionsKeepTheirKindByTheMenuFlags) {
    estado().Mant_PSU = true;
    estado().Mant_SIMCE = true;
    FrmMantPSU psu;
    EXPECT_EQ(psu.windowTitle(), " Mantenedor de puntajes PSU");
    EXPECT_EQ(psu.Spr_PSU.Celda(0, 1), "Nombre Prueba PSU");
    estado().Mant_PSU = false;
    FrmMantPSU simce;
    EXPECT_EQ(simce.windowTitle(), " Mantenedor de puntajes SIMCE");
    EXPECT_EQ(simce.CmdPuntajes_PSU->text(), "Crear Puntajes SIMCE por prueba");
    EXPECT_EQ(simce.Tipo(), "SIMCE");
}

TEST_F(Puntajes, ChecksInOrderWordForWord) {
    estado().Mant_PSU = true;
    FrmMantPSU f;
    const std::vector<std::pair<std::function<void()>, const char*>> pasos = {
        {[&] { f.TxtNombrePSU->setText("Matemática"); }, "El Nombre de la prueba esta en blanco, verifique..."},
        {[&] { f.CboNumeroPreguntas->setCurrentIndex(69); }, "El numero de preguntas esta en blanco, verifique..."},
        {[&] { f.Chk_SI->setChecked(true); }, nullptr},
        {[&] { f.CboEliminaMalas->setCurrentIndex(3); },
         "El numero de eliminacion de malas por buenas esta en blanco, verifique..."},
        {[&] { f.TxtPuntajeMin->setText("850"); }, "El puntaje Mínimo esta en blanco, verifique..."},
        {[&] { f.TxtPuntajeMax->setText("850"); }, "El puntaje Máximo esta en blanco, verifique..."},
        {[&] { f.TxtPuntajeMin->setText("900"); }, "Los puntajes no pueden ser iguales, verifique..."},
        {[&] { f.TxtPuntajeMin->setText("150"); }, "El puntaje Mínimo no puede ser mayo al puntaje Máximo, verifique..."},
    };
    for (const auto& [arregla, texto] : pasos) {
        if (texto) {
            guion->Espera("Mantenedor PSU");
            EXPECT_FALSE(f.fcn_Valida_Campos());
            EXPECT_EQ(guion->cajas.back().texto, texto);
        }
        arregla();
    }
    EXPECT_TRUE(f.fcn_Valida_Campos());
}

TEST_F(Puntajes, SaveAddsOrUpdatesAndDeleteLeavesTheTable) {
    estado().Mant_PSU = true;
    Define(4, "Historia", 75);
    Define(9, "Lectura", 40, "SIMCE");
    Valor("insert into Puntajes_PSU_DINAMICO values (4, 0, 'Historia', 150)");
    FrmMantPSU f;
    ASSERT_EQ(f.Spr_PSU.MaxRows(), 1) << "only the definitions of its kind";
    f.TxtNombrePSU->setText("Matemática O'Brien");
    f.CboNumeroPreguntas->setCurrentIndex(69);
    f.Chk_SI->setChecked(true);
    f.CboEliminaMalas->setCurrentIndex(3);
    f.TxtPuntajeMin->setText("150");
    f.TxtPuntajeMax->setText("850");
    guion->Espera("Mantenedor PSU");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Los datos han sido grabados con éxito");
    EXPECT_EQ(Filas("select * from Puntajes_PSU_NEW where id_psu = 10"),
              QStringList{"10|Matemática O'Brien|PSU|70|SI|4|150|850"});
    f.Spr_PSU_Click(1);  // Historia
    EXPECT_FALSE(f.Chk_SI->isChecked());
    f.TxtPuntajeMax->setText("800");
    guion->Espera("Mantenedor PSU");
    f.XPButAceptar_Click();
    EXPECT_EQ(Valor("select puntaje_max from Puntajes_PSU_NEW where id_psu = 4").toInt(), 800);

    guion->Espera("Eliminacion Prueba PSU");
    f.XPButton1_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Debe seleccionar una prueba para eliminar");
    f.Spr_PSU_Click(1);
    guion->Espera("Eliminacion Prueba PSU", vbOK);
    f.XPButton1_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Esta seguro de elimnar la prueba Historia");
    EXPECT_EQ(Valor("select count(*) from Puntajes_PSU_NEW where id_psu = 4").toInt(), 0);
    EXPECT_EQ(Valor("select count(*) from Puntajes_PSU_DINAMICO").toInt(), 1) << "its score table stays";
}

TEST_F(Puntajes, ScoreTableFromAFileAndTheInvertedRowCheck) {
    estado().Puntajes_PSU = true;
    const QString largo = "Prueba de Transición Matemática Competencia Matemática M1";  // 57 characters
    Define(3, largo, 60);
    frmPuntajesPSU f;
    EXPECT_EQ(f.windowTitle(), "Ingreso de Puntajes por Prueba PSU");
    f.CboPSU->setCurrentIndex(0);
    guion->Espera("Ingreso de Puntajes por Prueba PSU");
    f.CboPSU_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Esta prueba no cuenta con sus puntajes asociados...");
    EXPECT_EQ(f.TxtNumPreguntas->text(), "60");

    // Exactly 60 rows, one short of 0..60 right answers, is the one table refused.
    guion->Espera("Ingreso de Puntajes PSU");
    f.Carga_Masiva_Por_Archivo(Tabla("sesenta.xlsx", 60));
    EXPECT_EQ(guion->cajas.back().texto, "Se han cargado 59 puntajes de PSU") << "the last row reached minus 2";
    EXPECT_EQ(f.Spr_PSU.MaxRows(), 60);
    guion->Espera("Ingreso de Puntajes por Prueba PSU");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "El numero de fila cargadas en la grilla no es igual al Numero de Preguntas");

    guion->Espera("Ingreso de Puntajes PSU");
    f.Carga_Masiva_Por_Archivo(Tabla("sesenta_y_uno.xlsx", 61));
    EXPECT_EQ(f.Spr_PSU.Celda(61, 1), "60");
    EXPECT_EQ(f.Spr_PSU.Celda(61, 2), "750");
    guion->Espera("Ingreso de Puntajes por Prueba PSU");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Proceso terminado con exito");
    EXPECT_EQ(Valor("select count(*) from Puntajes_PSU_DINAMICO where id_psu = 3").toInt(), 61);
    EXPECT_EQ(Valor("select distinct nombre_psu from Puntajes_PSU_DINAMICO").toString(), largo.left(50));
    EXPECT_FALSE(f.XPButAceptar->isEnabled());
}

TEST_F(Puntajes, LongFilesStopAt200RowsAndAFullTableAsksFirst) {
    estado().Puntajes_PSU = true;
    Define(3, "Ciencias", 80);
    frmPuntajesPSU f;
    guion->Espera("Ingreso de Puntajes PSU");
    f.Carga_Masiva_Por_Archivo(Tabla("x.xlsx", 5));
    EXPECT_EQ(guion->cajas.back().texto, "Debe seleccionar una prueba PSU");
    f.CboPSU->setCurrentIndex(0);
    guion->Espera("Ingreso de Puntajes por Prueba PSU");
    f.CboPSU_Click();
    guion->Espera("Ingreso de Puntajes PSU");
    f.Carga_Masiva_Por_Archivo(Tabla("trescientas.xlsx", 300));
    EXPECT_EQ(f.Spr_PSU.MaxRows(), 200);
    EXPECT_EQ(guion->cajas.back().texto, "Se han cargado 199 puntajes de PSU");
    guion->Espera("Ingreso de Puntajes por Prueba PSU", vbCancel);
    f.CmdViaFile_Click();
    EXPECT_TRUE(guion->cajas.back().texto.startsWith("La prueba Ciencias ya cuenta con los puntajes PSU "));
    EXPECT_EQ(f.Spr_PSU.MaxRows(), 200) << "Cancel keeps the table";
}

TEST_F(Puntajes, SimceRangeRefusesBlanksAndZeros) {
    FrmMantSimce f;
    EXPECT_EQ(f.TxtMinimo->text(), "100");
    EXPECT_EQ(f.TxtMaximo->text(), "400");
    f.TxtMaximo->clear();
    guion->Espera("Mantenedor SIMCE");
    f.Verifica_Vacio(f.TxtMaximo);
    EXPECT_EQ(guion->cajas.back().texto, "No puede dejar el puntaje de Maximo en blanco");
    f.TxtMinimo->setText("0");
    guion->Espera("Mantenedor SIMCE");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Debe ingresar un puntaje minimo para el SIMCE");
    f.TxtMinimo->setText("150");
    guion->Espera("Mantenedor SIMCE");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Debe ingresar un puntaje maximo para el SIMCE");
    f.TxtMaximo->setText("350");
    guion->Espera("Mantenedor PSU");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Los datos han sido modificados");
    EXPECT_EQ(Filas("select * from Puntaje_SIMCE"), QStringList{"150|350"});
}
