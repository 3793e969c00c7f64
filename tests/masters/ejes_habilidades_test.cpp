// Axes and skills: the type lists of the axes, the save that always adds, the skill update
// that writes the concept twice, the loads and their limits.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>

#include "apoyo_maestros.h"
#include "masters/screens/frm_habilidad.h"
#include "masters/screens/frm_tab_eje_tema.h"

namespace {

using EjesHabilidades = Maestros;

QStringList Items(const QComboBox& lista) {
    QStringList items;
    for (int i = 0; i < lista.count(); ++i) items << lista.itemText(i);
    return items;
}

TEST_F(EjesHabilidades, TestTypeFillsSubjectsOrLevels) {
    Valor("insert into Asignaturas values (1, 'MATEMÁTICA'), (2, 'HISTORIA')");
    Valor(
        "insert into ejes values (1, 'A', 'Cuarto Básico', 'SIMCE'), (2, 'B', 'Cuarto Básico', "
        "'SIMCE'), "
        "(3, 'C', 'II Medio', 'SIMCE'), (4, 'D', 'MATEMÁTICA', 'PSU')");
    FrmTabEjeTema f;
    const std::vector<std::pair<const char*, QStringList>> casos = {
        {"GENERAL", {"MATEMÁTICA", "HISTORIA"}},
        {"SIMCE", {"Cuarto Básico", "II Medio"}},
        {"PSU", {"MATEMÁTICA"}}};
    for (const auto& [prueba, ensayos] : casos) {
        f.CboPrueba->setCurrentText(prueba);
        f.CboPrueba_Click();
        EXPECT_EQ(Items(*f.CboTipoEnsayo), ensayos) << prueba;
    }
    EXPECT_EQ(Items(*f.CboNiveles), QStringList({"Cuarto Básico", "Octavo Básico", "II Medio"}));

    f.SprEjeTema_Click(3);
    EXPECT_EQ(f.TxtNombre->text(), "C");
    EXPECT_EQ(f.TxtID->text(), "3");
    EXPECT_EQ(f.CboPrueba->currentText(), "SIMCE");
    EXPECT_EQ(f.CboTipoEnsayo->currentText(), "II Medio");
}

TEST_F(EjesHabilidades, AxisSaveAlwaysAddsAndNeedsEveryField) {
    FrmTabEjeTema f;
    f.TxtNombre->setText("NÚMEROS D'ORO");
    f.XPButAceptar_Click();  // no type chosen: nothing happens, nothing is told
    EXPECT_EQ(Valor("select count(*) from ejes").toInt(), 0);
    for (int vez = 0; vez < 2; ++vez) {
        f.TxtNombre->setText("NÚMEROS D'ORO");
        f.CboPrueba->setCurrentText("PSU");
        f.CboTipoEnsayo->setCurrentText("MATEMÁTICA");
        f.XPButAceptar_Click();
        EXPECT_TRUE(f.TxtNombre->text().isEmpty());
    }
    EXPECT_EQ(Filas("select * from ejes"),
              QStringList({"1|NÚMEROS D'ORO|MATEMÁTICA|PSU", "2|NÚMEROS D'ORO|MATEMÁTICA|PSU"}));
    EXPECT_EQ(f.SprEjeTema.MaxRows(), 2);

    f.SprEjeTema_Click(1);
    guion->Espera("Mantenedor de Ejes Tematicos", vbOK);
    f.XPButton1_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Desea Eliminar el Eje Tematico : NÚMEROS D'ORO");
    EXPECT_EQ(Filas("select IdEje from ejes"), QStringList{"2"});
}

TEST_F(EjesHabilidades, AxisLoadReplacesAllRows) {
    Valor("insert into ejes values (9, 'VIEJO', 'X', 'PSU')");
    FrmTabEjeTema f;
    guion->EsperaArchivo(Lista("ejes.xlsx"));
    guion->Espera("Mantenedor de Ejes Tematicos");
    f.CmdCarga_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Se han insertado 3 Eje Tematicos");
    EXPECT_EQ(Filas("select * from ejes"),
              QStringList({"1|NÚMEROS|MATEMÁTICA|GENERAL", "2|ÁLGEBRA|MATEMÁTICA|PSU",
                           "3|LECTURA D'OBRAS|Cuarto Básico|SIMCE"}));
    guion->EsperaArchivo(Ruta("ejes.ods"));
    guion->Espera("Mantenedor de Ejes Tematicos");
    f.CmdCarga_Click();
    EXPECT_EQ(guion->cajas.back().texto,
              "El archivo seleccionado no es extensión .XLSX, verifique");
}

TEST_F(EjesHabilidades, SkillEditWritesTheConceptAsDefinition) {
    FrmHabilidad f;
    EXPECT_EQ(f.TxtCodigo->text(), "0");
    f.TxtConcepto->setText("ANALIZAR");
    f.TxtHabilidad->setText("Descomponer un todo en partes");
    guion->Espera("Mantenedor de Habilidades", vbCancel);
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Desea agregar la nueva Habilidad ANALIZAR");
    EXPECT_EQ(Valor("select count(*) from objetivos").toInt(), 0);

    guion->Espera("Mantenedor de Habilidades", vbOK);
    f.XPButAceptar_Click();
    EXPECT_EQ(Filas("select * from objetivos"),
              QStringList{"1|ANALIZAR|Descomponer un todo en partes|Activo"});
    EXPECT_TRUE(f.TxtConcepto->text().isEmpty() && f.TxtHabilidad->text().isEmpty());

    f.SprObjetivos_Click(1);
    f.TxtConcepto->setText("ANALIZAR'S");
    f.TxtHabilidad->setText("Otra definición");
    guion->Espera("Mantenedor de Habilidades", vbOK);
    f.XPButAceptar_Click();
    EXPECT_EQ(Filas("select * from objetivos"), QStringList{"1|ANALIZAR'S|ANALIZAR'S|Activo"});

    f.SprObjetivos_Click(1);
    guion->Espera("mantenedor de Habilidades", vbOK);
    f.XPButton1_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Desea Eliminar el Concepto ANALIZAR'S");
    EXPECT_EQ(Valor("select count(*) from objetivos").toInt(), 0);
}

TEST_F(EjesHabilidades, SkillLoadStopsAt1000WithoutAWord) {
    FrmHabilidad f;
    guion->EsperaArchivo(Lista("habilidades_1005.xlsx"));
    guion->Espera("Mantenedor de HAbilidades");
    f.CmdCarga_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Se han insertado 1000 Habilidades");
    EXPECT_EQ(Valor("select count(*) from objetivos").toInt(), 1000);
    EXPECT_EQ(Filas("select * from objetivos where idobjetivo in (1, 1000) order by idobjetivo"),
              QStringList({"1|HABILIDAD 0001|Definición 1|ACTIVO",
                           "1000|HABILIDAD 1000|Definición 1000|ACTIVO"}));
    EXPECT_EQ(f.SprObjetivos.MaxRows(), 1000);
}

}  // namespace
