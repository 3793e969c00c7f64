// The SEP screen: the axes screen with its switch on, opened from its menu entry; its reports
// name their axes after the axes screen. Also what every analysis grid does on a click.
#include "analysis/screens/frm_sep.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTableView>

#include "analysis/prueba_ejes.h"
#include "analysis/screens/frm_analisis_cua.h"
#include "analysis/screens/frm_por_pregunta.h"
#include "app/screens/mdi_main.h"
#include "platform/planilla_lectura.h"
#include "store/copias_prueba.h"
#include "support/prueba_informes.h"

namespace {

class Sep : public PruebaEjes {
  protected:
    void Una_Forma() {
        Ejecuta("insert into objetivos values (1, 'Aplicar', '', '')");
        Clave(1, {1, 2});
        Eje(1, "Numeros", "Aplicar");
        Eje(2, "Algebra", "Aplicar");
        Alumno("1-9", "Arce", 1, {1, 3});
        Ejecuta("insert into ResultadoAlumnos_rj values (4, '1-9', 1, 1, 0, 0, 1, 4, 0, 50, 1)");
    }
    QString Exporta(FrmHabiliObjet& f, void (FrmHabiliObjet::*boton)(), const char* archivo) {
        const QString ruta = Ruta(archivo);
        guion->EsperaArchivo(ruta);
        guion->Espera("Zorta");
        (f.*boton)();
        return ruta;
    }
};

TEST_F(Sep, SinEntradaDelMenuTrabajaComoHabilidadesYSoloSepQuedaSinDatos) {
    Una_Forma();
    estado().Tipo_Analisis.clear();
    FrmSEP f;
    EXPECT_EQ(f.windowTitle(), "Analisis Habilidades");
    EXPECT_EQ(f.SprSuperior.Celda(1, 0), "Aplicar");
    EXPECT_EQ(f.MSChart1.etiquetas, QStringList({"R1"})) << "the chart keeps its own labels";
    EXPECT_EQ(f.findChild<QWidget*>("XPButton6"), nullptr);
    const PlanillaLectura l =
        PlanillaLectura::Abre(Exporta(f, &FrmHabiliObjet::XPButton5_Click, "solo.xlsx"));
    EXPECT_EQ(l.Celda(2, "B"), " BUENAS");
    EXPECT_EQ(l.Filas(), 2) << "SprSoloSep stays empty: headings only";
}

// Kinds 5 to 9 name the axes after the open axes screen, whatever the SEP screen shows.
TEST_F(Sep, LosNombresDeLosEjesVienenDeLaPantallaDeEjes) {
    Una_Forma();
    MdiMain m;
    estado().Tipo_Analisis = "HABILIDAD";
    ASSERT_NE(m.Muestra_Pantalla("FrmHabiliObjet"), nullptr);
    estado().Tipo_Analisis = "EJE TEMATICO";
    m.Accion("Mnu_Sep")->trigger();
    auto* sep = qobject_cast<FrmSEP*>(m.Pantalla("FrmSEP"));
    ASSERT_NE(sep, nullptr);
    EXPECT_EQ(sep->SprSuperior.Celda(1, 0), "Algebra");
    const PlanillaLectura l =
        PlanillaLectura::Abre(Exporta(*sep, &FrmHabiliObjet::CmdExportaAlumnos_Click, "seis.xlsx"));
    EXPECT_EQ(l.Celda(1, "B"), "APLICAR");
    EXPECT_EQ(l.Celda(3, "A"), "ARCE");
    EXPECT_EQ(l.Celda(3, "H"), "1") << "the values are the SEP screen's own: Numeros second";
}

TEST_F(Sep, UnaPruebaSinEjesDejaLaPantallaAbiertaYVacia) {
    MdiMain m;
    m.show();
    estado().Tipo_Analisis.clear();
    guion->Espera("Ejes tematicos y Habilidades");
    m.Accion("Mnu_Sep")->trigger();
    EXPECT_EQ(guion->cajas.back().texto,
              "La prueba Unidad 1 codigo 4 no tiene asociado las Habilidades, asignelas");
    ASSERT_NE(m.Pantalla("FrmSEP"), nullptr);
    EXPECT_TRUE(m.Pantalla("FrmSEP")->isVisible());
}

// A test without a key has an empty form list: the several-forms branch, no file.
TEST_F(Sep, SinFormasNoSeEscribeArchivo) {
    Eje(1, "Numeros");
    FrmHabiliObjet f;
    guion->EsperaArchivo(Ruta("nada.xlsx"));
    guion->Espera("Exportación Excel Por Forma");
    f.XPButton1_Click();
    EXPECT_EQ(guion->cajas.back().texto, " Datos exportados en ");
    EXPECT_TRUE(QDir(carpeta.path()).entryList({"nada*"}).isEmpty());
}

// A click on any cell of an analysis grid does nothing (DialogosGuion fails on any box).
TEST_F(Sep, UnClicEnLasGrillasNoHaceNada) {
    Una_Forma();
    FrmAnalisis_Cua cua;
    FrmPorPregunta pregunta;
    FrmHabiliObjet ejes;
    FrmSEP sep;
    for (QWidget* w : std::initializer_list<QWidget*>{&cua, &pregunta, &ejes, &sep})
        for (QTableView* v : w->findChildren<QTableView*>()) {
            ASSERT_GT(v->model()->rowCount(), 0) << v->objectName().toStdString();
            Q_EMIT v->clicked(v->model()->index(0, 0));
        }
    EXPECT_TRUE(guion->cajas.empty());
}

TEST_F(Sep, Captura) {
    const QString carpeta_capturas = qEnvironmentVariable("ZORTA_CAPTURAS");
    if (carpeta_capturas.isEmpty()) GTEST_SKIP() << "ZORTA_CAPTURAS no indicado";
    Crea_Prueba_Informes(5, QStringLiteral("3° Medio A"), 30);
    ASSERT_TRUE(Fija_Prueba_Actual(5));
    estado().Tipo_Analisis = "EJE TEMATICO";
    FrmSEP f;
    f.resize(1360, 760);
    f.show();
    QCoreApplication::processEvents();
    EXPECT_TRUE(f.grab().save(QDir(carpeta_capturas).filePath("frm_sep.png")));
}

}  // namespace
