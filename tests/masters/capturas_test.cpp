// Pictures of the students' screen with a loaded list and of the achievement levels, for the
// user guide. Written only when ZORTA_CAPTURAS names a folder.
#include <gtest/gtest.h>

#include <QDir>
#include <QTableView>

#include "apoyo_maestros.h"
#include "masters/screens/frm_alumnos.h"
#include "masters/screens/frm_logros.h"

namespace {

class Capturas : public Maestros {
  protected:
    void SetUp() override {
        if (qEnvironmentVariableIsEmpty("ZORTA_CAPTURAS"))
            GTEST_SKIP() << "ZORTA_CAPTURAS no indicado";
        Maestros::SetUp();
    }
    static void Guarda(QWidget& pantalla, const QString& nombre) {
        pantalla.show();
        const QString ruta = QDir(qEnvironmentVariable("ZORTA_CAPTURAS")).filePath(nombre);
        EXPECT_TRUE(pantalla.grab().save(ruta)) << ruta.toStdString();
    }
};

TEST_F(Capturas, AlumnosConListaCargada) {
    FrmAlumnos f;
    guion->Espera("Mantenedor de Alumnos");
    f.Carga_Masiva_Por_Archivo(Lista("alumnos_45.xlsx"));
    f.Carga_Grilla_Alumnos();
    f.SprAlumnos_Click(2);
    f.findChild<QTableView*>("SprAlumnos")->selectRow(1);
    Guarda(f, "frm_alumnos.png");
}

TEST_F(Capturas, NivelesDeLogro) {
    Valor("insert into NivelesCalificacion values ('D', 70, 100), ('ND', 41, 69), ('PD', 0, 40)");
    Frm_Logros f;
    Guarda(f, "frm_logros.png");
}

}  // namespace
