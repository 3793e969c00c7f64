// The evaluation settings: the minimum grade, the ten range checks in their order, the gray
// value whose only limit is 0.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>

#include "apoyo_maestros.h"
#include "app/estado.h"
#include "masters/screens/frm_grises.h"
#include "masters/screens/frm_logros.h"
#include "masters/screens/frm_nivel_eva.h"
#include "store/nota_minima.h"

namespace {

using Ajustes = Maestros;

TEST_F(Ajustes, MinimumGradeStoredAsTypedAndReadRounded) {
    FrmNivelEva f;
    ASSERT_EQ(f.Cbo_Nota_Base->count(), 60);
    EXPECT_EQ(f.Cbo_Nota_Base->itemText(0), "1.0");
    EXPECT_EQ(f.Cbo_Nota_Base->itemText(59), "6.9");
    EXPECT_EQ(f.Cbo_Nota_Base->currentText(), "1");
    EXPECT_EQ(f.Cbo_Puntaje_Maximo->count(), 100);

    const std::vector<std::pair<const char*, const char*>> ceros = {
        {"", "La nota Base es CERO, verifique..."},
        {"  ", "La nota Base es CERO, verifique..."},
        {"0.0", "La nota Base es CERO, verifique..."}};
    for (const auto& [texto, palabras] : ceros) {
        f.Cbo_Nota_Base->setCurrentText(texto);
        guion->Espera("Nota base Pruebas");
        f.XPButAceptar_Click();
        EXPECT_EQ(guion->cajas.back().texto, palabras);
    }
    // A text that is no number is told and stores nothing.
    f.Cbo_Nota_Base->setCurrentText("1,5x");
    guion->Espera("Error de ejecución");
    EXPECT_FALSE(Comando([&] { f.XPButAceptar_Click(); }));
    EXPECT_EQ(guion->cajas.back().texto, "El valor \"1,5x\" no es un número.");
    // Typed with a decimal comma, the grade is stored as the number.
    const int16_t actual = estado().Nota_Minima_Actual;
    f.Cbo_Nota_Base->setCurrentText("1,5");
    guion->Espera("Niveles Calificación");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Los datos han sido grabado");
    EXPECT_EQ(Filas("select * from NivelesCalificacion where concepto = 'NM'"),
              QStringList{"NM|1.5|0"});
    EXPECT_EQ(Fnc_Lee_Nota_Minima(), 2);
    EXPECT_EQ(estado().Nota_Minima_Actual, actual)
        << "the shared value is read again by the next run";

    Valor("delete from NivelesCalificacion where concepto = 'NM'");
    guion->Espera("Indocar Minimo de Notas");
    FrmNivelEva g;
    g.Cbo_Nota_Base->setCurrentText("6.9");
    guion->Espera("Niveles Calificación");
    g.XPButAceptar_Click();
    EXPECT_EQ(Filas("select * from NivelesCalificacion where concepto = 'NM'"),
              QStringList{"NM|6.9|0"});
}

// Boxes in the order D, ND, PD, then the four levels.
void Llena(Frm_Logros& f, const std::vector<double>& valores) {
    const char* cajas[] = {
        "D", "ND", "PD", "Nivel_Bajo", "Nivel_Medio_Bajo", "Nivel_Medio_Alto", "Nivel_Alto"};
    for (size_t i = 0; i < valores.size(); ++i)
        f.Caja_Logro(QStringLiteral("Txt_%1_%2").arg(cajas[i / 2], i % 2 ? "Fin" : "Ini"))
            ->setText(QString::number(valores[i]));
}

TEST_F(Ajustes, RangeChecksInTheirOrder) {
    guion->Espera("Mantenedor de Niveles de Logro");
    Frm_Logros f;
    EXPECT_EQ(guion->cajas[0].texto, "No existe Niveles de Logro , verifique .");
    EXPECT_EQ(f.Caja_Logro("Txt_Nivel_Alto_Fin")->text(), "0");
    struct Caso {
        std::vector<double> d_nd_pd;
        const char* palabras;
    };
    const std::vector<Caso> casos = {
        {{70, 100, 40, 69, 50, 39}, "El PD Inicial no puede ser mayor al PD final. verifique"},
        {{70, 100, 40, 69, 0, 0},
         "El Eje en Proceso de Desarrollo Final no puede ser 0. verifique"},
        {{70, 100, 19, 69, 0, 20}, "El ND Inicial no puede ser Menor al PD Final. verifique"},
        {{70, 100, 20, 69, 0, 20}, "El ND Inicial no puede ser igual al PD Final. verifique"},
        {{70, 100, 50, 40, 0, 20}, "El ND Inicial no puede ser mayor al ND final. verifique"},
        {{70, 100, 0, 0, -5, -1}, "El ND Final no puede ser 0. verifique"},
        {{60, 100, 21, 69, 0, 20}, "El ND Final no puede ser MAyor al D Inicial. verifique"},
        {{69, 100, 21, 69, 0, 20}, "El ND Final no puede ser igual al D Inicial. verifique"},
        {{70, 60, 21, 69, 0, 20}, "El D Inicial no puede ser Mayor al D Final. verifique"},
        {{-5, 0, -9, -6, -20, -10}, "El D Final no puede ser 0. verifique"},
    };
    for (const Caso& c : casos) {
        Llena(f, c.d_nd_pd);
        guion->Espera("Mantenedor de Logros");
        EXPECT_FALSE(f.Fnc_Validar_Rangos()) << c.palabras;
        EXPECT_EQ(guion->cajas.back().texto, c.palabras);
        EXPECT_EQ(guion->cajas.back().estilo, vbCritical);
    }
    Llena(f, {70, 100, 21, 69, 0, 20});
    EXPECT_TRUE(f.Fnc_Validar_Rangos());
}

TEST_F(Ajustes, LevelsSavedInOrderWithoutCheckingTheFourLevels) {
    guion->Espera("Mantenedor de Niveles de Logro");
    Frm_Logros f;
    Llena(f, {70, 100, 21, 69, 0, 20, 0, 50, 40, 60, 55, 80, 10, 100});
    f.Caja_Logro("Txt_PD_Fin")->setText("20,5");  // a decimal comma keeps its decimals
    f.XPButAceptar_Click();
    EXPECT_EQ(Filas("select * from NivelesCalificacion where concepto not in ('NM', 'L', 'PL', "
                    "'NL') order by rowid"),
              QStringList({"D|70|100", "ND|21|69", "PD|0|20.5", "NB|0|50", "NMB|40|60", "NMA|55|80",
                           "NA|10|100"}));
    Frm_Logros g;  // the row D exists now: no warning
    EXPECT_EQ(g.Caja_Logro("Txt_ND_Ini")->text(), "21");
    EXPECT_EQ(g.Caja_Logro("Txt_Nivel_Medio_Alto_Fin")->text(), "80");
}

TEST_F(Ajustes, GrayValueOnlyRefusesBlankAndZero) {
    Frm_Grises f;
    EXPECT_EQ(f.TxtNumColor->text(), "180");
    EXPECT_EQ(f.TxtResult->palette().color(QPalette::Base), QColor(180, 180, 180));
    const std::vector<std::pair<const char*, const char*>> rechazos = {
        {" ", "El número de gris esta en blanco"},
        {"0", "El número de gris deber variar entre 1 y 255"}};
    for (const auto& [texto, palabras] : rechazos) {
        f.TxtNumColor->setText(texto);
        guion->Espera("Mantenedor de Grises");
        f.XPButAceptar_Click();
        EXPECT_EQ(guion->cajas.back().texto, palabras);
    }
    f.TxtNumColor->setText("999");
    guion->Espera("Mantenedor de Grises");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "El número ha sido modificado");
    EXPECT_EQ(Valor("select valor_indice from indice_general where tipo_indice = 'COLOR'").toInt(),
              999);
    EXPECT_EQ(estado().Nivel_Gris, 999);
    f.XPButton1_Click();
    EXPECT_EQ(f.TxtResult->palette().color(QPalette::Base), QColor(255, 255, 255));

    f.TxtNumColor->clear();
    Teclea(f.TxtNumColor, "4x2-17");
    EXPECT_EQ(f.TxtNumColor->text(), "421");
}

TEST_F(Ajustes, GrayWithoutItsRowWarnsAndStillTellsSaved) {
    Valor("delete from indice_general where tipo_indice = 'COLOR'");
    guion->Espera("Indice Color");
    Frm_Grises f;
    EXPECT_EQ(f.TxtNumColor->text(), "0");
    f.TxtNumColor->setText("150");
    guion->Espera("Mantenedor de Grises");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "El número ha sido modificado");
    EXPECT_TRUE(
        Valor("select valor_indice from indice_general where tipo_indice = 'COLOR'").isNull());
}

}  // namespace
