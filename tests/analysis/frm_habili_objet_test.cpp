// The axes and skills screen: its refusals word for word, the form list, the exports and
// prints form by form, and its picture for the user guide.
#include "analysis/screens/frm_habili_objet.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QPrinter>

#include "analysis/prueba_ejes.h"
#include "platform/planilla_lectura.h"

namespace {

class HabiliObjet : public PruebaEjes {
  protected:
    // Two forms; Numeros holds questions 1 and 2, Algebra question 3.
    void Dos_Formas() {
        Clave(1, {1, 2, 3});
        Clave(2, {3, 2, 1});
        Eje(1, "Numeros", "Analizar");
        Eje(2, "Numeros", "Analizar");
        Eje(3, "Algebra", "Aplicar");
        Alumno("1-9", "Arce", 1, {1, 2, 3});
        Alumno("2-7", "Bravo", 2, {3, 2, 2});
    }
};

TEST_F(HabiliObjet, SinPruebaOSinEjesAvisaYNoQuedaValida) {
    estado().Id_Prueba_Actual = 0;
    guion->Espera("Correccion de pruebas");
    { FrmHabiliObjet f; }
    EXPECT_EQ(guion->cajas.back().texto,
              "UD. no tiene asociado a una prueba para esta carga, verifique sus datos");
    estado().Id_Prueba_Actual = 4;
    const struct {
        const char* tipo;
        const char* texto;
    } casos[] = {
        {"EJE TEMATICO", "La prueba Unidad 1 codigo 4 no tiene asociado Ejes tematicos, asignelos"},
        {"HABILIDAD", "La prueba Unidad 1 codigo 4 no tiene asociado las Habilidades, asignelas"}};
    for (const auto& c : casos) {
        estado().Tipo_Analisis = c.tipo;
        estado().Analisis_Valido = true;
        guion->Espera("Ejes tematicos y Habilidades");
        FrmHabiliObjet f;
        EXPECT_EQ(guion->cajas.back().texto, c.texto);
        EXPECT_EQ(guion->cajas.back().estilo, vbCritical);
        EXPECT_FALSE(estado().Analisis_Valido);
    }
}

TEST_F(HabiliObjet, LaGrillaDelCursoSigueLaFormaElegida) {
    Dos_Formas();
    FrmHabiliObjet f;
    EXPECT_TRUE(estado().Analisis_Valido);
    EXPECT_EQ(f.windowTitle(), "Analisis Ejes Tematicos");
    EXPECT_FALSE(f.CboForma->isHidden());
    ASSERT_EQ(f.SprSuperior.MaxRows(), 2);
    EXPECT_EQ(f.SprSuperior.Celda(2, 0), "Numeros");
    // Arce is right on form 1, but question 2 is judged against row 2 of the key.
    EXPECT_EQ(f.SprSuperior.Celda(2, 7), "50%");
    EXPECT_EQ(f.MSChart1.etiquetas, QStringList({"EJE 1", "EJE 2"}));
    const QString alumnos = f.SprPantalla.Celda(2, 2);
    f.CboForma->setCurrentIndex(1);
    f.CboForma_Click();
    EXPECT_EQ(f.SprSuperior.Celda(1, 1), "1") << "Bravo alone, on form 2";
    EXPECT_EQ(f.SprSuperior.Celda(2, 1), "0");
    EXPECT_EQ(f.SprPantalla.Celda(2, 2), alumnos);
    Ejecuta("insert into objetivos values (1, 'Aplicar', '', '')");
    Ejecuta("insert into objetivos values (2, 'Analizar', '', '')");
    estado().Tipo_Analisis = "HABILIDAD";
    FrmHabiliObjet g;
    EXPECT_EQ(g.windowTitle(), "Analisis Habilidades");
    EXPECT_EQ(g.SprSuperior.Celda(1, 0), "Analizar");
    EXPECT_EQ(g.SprSuperior.Celda(1, 7), "50%");
    EXPECT_EQ(g.MSChart1.etiquetas.value(0), "EJE 1") << "axes in the labels, skills too";
}

TEST_F(HabiliObjet, ConVariasFormasLosBotonesSepEscribenElTipo6) {
    Dos_Formas();
    FrmHabiliObjet f;
    const QString ruta = Ruta("sep.xlsx");
    guion->EsperaArchivo(ruta);
    guion->Espera("Exportación Excel Por Forma");
    f.XPButton4_Click();
    const QString uno = Ruta("sep_FORMA_1.xlsx"), dos = Ruta("sep_FORMA_2.xlsx");
    EXPECT_EQ(guion->cajas.back().texto, " Datos exportados en \r" + uno + "\r \r" + dos + "\r ");
    EXPECT_EQ(guion->cajas.back().estilo, vbInformation);
    const PlanillaLectura l = PlanillaLectura::Abre(dos);
    EXPECT_EQ(l.Celda(1, "B"), "ALGEBRA");
    EXPECT_EQ(l.Celda(2, "B"), "FORMA");
    EXPECT_EQ(l.Celda(3, "A"), "ARCE");
    EXPECT_EQ(f.CboForma->currentIndex(), 1);
}

TEST_F(HabiliObjet, UnaFormaExportaCadaTipoConSuNombre) {
    Clave(1, {1, 2});
    Eje(1, "Numeros");
    Eje(2, "Algebra");
    Alumno("1-9", "Arce", 1, {1, 3});
    FrmHabiliObjet f;
    EXPECT_TRUE(f.CboForma->isHidden());
    const struct {
        void (FrmHabiliObjet::*boton)();
        const char* archivo;
        const char* celda;
        const char* texto;
    } casos[] = {{&FrmHabiliObjet::XPButton1_Click, "t5.xlsx", "B1", "CANTIDAD"},
                 {&FrmHabiliObjet::CmdExportaAlumnos_Click, "t6.xlsx", "C2", "BUENAS"},
                 {&FrmHabiliObjet::XPButton4_Click, "t7.xlsx", "B5", "Algebra"},
                 {&FrmHabiliObjet::XPButton5_Click, "t8.xlsx", "B2", " BUENAS"},
                 {&FrmHabiliObjet::XPButton6_Click, "t9.xlsx", "A3", "Arce"}};
    for (const auto& c : casos) {
        const QString ruta = Ruta(c.archivo);
        guion->EsperaArchivo(ruta);
        guion->Espera("Zorta");
        (f.*c.boton)();
        EXPECT_EQ(guion->cajas.back().texto, " Datos exportados en " + ruta);
        const QString celda = QString::fromLatin1(c.celda);
        EXPECT_EQ(PlanillaLectura::Abre(ruta).Celda(celda.mid(1).toInt(), celda.left(1)), c.texto)
            << c.archivo;
    }
}

TEST_F(HabiliObjet, ImprimirPorFormaNombraArchivosQueNoEscribe) {
    Dos_Formas();
    FrmHabiliObjet f;
    QPrinter impresora;
    impresora.setOutputFormat(QPrinter::PdfFormat);
    impresora.setOutputFileName(Ruta("impresion.pdf"));
    f.Impresora = &impresora;
    guion->EsperaArchivo(Ruta("sin punto"));
    guion->Espera("Exportación Excel Por Forma");
    f.XPButton2_Click();
    EXPECT_EQ(guion->cajas.back().texto,
              " Datos exportados en \rC:\\Impresion_Archivos_FORMA_1..xlsx\r "
              "\rC:\\Impresion_Archivos_FORMA_2..xlsx\r ");
    EXPECT_FALSE(QFile::exists(Ruta("sin punto_FORMA_1..xlsx")));
    f.XPButton3_Click();
    EXPECT_TRUE(QFile::exists(Ruta("impresion.pdf")));
}

TEST_F(HabiliObjet, Captura) {
    const QString carpeta = qEnvironmentVariable("ZORTA_CAPTURAS");
    if (carpeta.isEmpty()) GTEST_SKIP() << "ZORTA_CAPTURAS no indicado";
    Dos_Formas();
    FrmHabiliObjet f;
    f.show();
    QCoreApplication::processEvents();
    EXPECT_TRUE(f.grab().save(QDir(carpeta).filePath("frm_habili_objet.png")));
}

}  // namespace
