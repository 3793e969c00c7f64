// The reading screen: captions and enabled commands from the run, the counts, the progress
// bar, List1, the sheet drawn, and the screens it unloads and shows.
#include "reading/screens/frm_imagen.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>

#include "apoyo_corrida.h"
#include "app/estado.h"
#include "platform/screens/navegacion.h"

namespace {

class PantallaImagen : public CorridaPrueba {
  public:
    void SetUp() override {
        CorridaPrueba::SetUp();
        navegacion().muestra = [this](const QString& n) {
            return pedidas << "muestra " + n, nullptr;
        };
        navegacion().descarga = [this](const QString& n) { pedidas << "descarga " + n; };
        Prueba(1, 10);
        Pauta(1, "ABCDEABCDE");
        Alumno(Rut_Valido(12345678));
    }
    void TearDown() override {
        navegacion() = Navegacion{};
        CorridaPrueba::TearDown();
    }
    QStringList pedidas;
};

}  // namespace

TEST_F(PantallaImagen, ARunShownOnTheScreen) {
    Hoja("a.bmp", Hoja_Alumno("ABCDEABCDE", 1, Rut_Valido(12345678)));
    DisenoHoja grande = Hoja_Alumno("ABCDEABCDE", 1, Rut_Valido(12345678));
    grande.marcas_grandes = true;
    Hoja("b.bmp", grande);
    FrmImagen f;
    EXPECT_EQ(f.windowTitle(), "Formulario Corrector");
    EXPECT_EQ(f.CmdCarga_Lee->text(), "Escanear Pruebas");
    EXPECT_EQ(f.CmdCorregir_Pruebas->text(), "Corregir Pruebas");
    guion->Espera("Corrección de Pruebas");
    guion->Espera("Fin Coreccion");
    f.CmdCorregir_Pruebas_Click();
    EXPECT_EQ(f.lbl_CantidadHojas->text(), "2");
    EXPECT_TRUE(f.lbl_CantidadHojas->styleSheet().contains("red")) << "a large-mark sheet was met";
    EXPECT_EQ(f.lbl_Leidas->text(), "2");
    EXPECT_EQ(f.TxtRut->text(), Rut_Valido(12345678));
    EXPECT_EQ(f.TxtForma->text(), "1");
    EXPECT_EQ(f.Progreso->value(), f.Progreso->maximum());
    EXPECT_FALSE(f.CmdCorregir_Pruebas->isEnabled());
    EXPECT_FALSE(f.Picture2->pixmap().isNull());
    EXPECT_EQ(f.List1->count(), f.corrida().c.List1.size());
    EXPECT_EQ(pedidas,
              QStringList({"descarga FrmImagen", "descarga frmCorrecPru", "muestra frmCorrecPru"}));
}

TEST_F(PantallaImagen, CommandsOfTheScreen) {
    estado().Corrige_Pruebas = false;
    FrmImagen f;
    EXPECT_EQ(f.CmdCarga_Lee->text(), "Escanear Matriz");
    EXPECT_EQ(f.CmdCorregir_Pruebas->text(), "Grabar Matriz");
    Grilla& g = f.corrida().c.SprRespuesta_Correctas;
    g.SetMaxRows(2);
    g.FijaCelda(1, 2, "A");
    f.CmdLimpiaGrilla_Click();
    for (int i = 1; i <= 2; ++i)
        for (int j = 1; j <= 2; ++j) EXPECT_EQ(g.Celda(i, j), "0");
    f.CmdSalir_Click();
    EXPECT_EQ(pedidas,
              QStringList({"descarga frmCorrecPru", "muestra frmCorrecPru", "descarga FrmImagen"}));
}
