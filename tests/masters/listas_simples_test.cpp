// Teachers, courses and subjects: the teacher number rule, the 100-row load limit, the course
// replace that names a table that doesn't exist, the subject box that can't refuse.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>

#include "apoyo_maestros.h"
#include "masters/screens/frm_asignatura.h"
#include "masters/screens/frm_cursos.h"
#include "masters/screens/frm_profesores.h"

namespace {

using Listas = Maestros;

TEST_F(Listas, TeacherNumberIsCountPlusOneMovedPastTakenNumbers) {
    FrmProfesores f;
    for (const char* nombre : {"ANA", "BETO", "CARLA"}) {
        f.TxtNombre->setText(nombre);
        guion->Espera("Mantenedor de Profesores");
        f.XPButAceptar_Click();
        EXPECT_EQ(guion->cajas.back().texto,
                  "El Profesor se ha creado con éxito en la base de datos");
    }
    f.TxtNombre->setText("BETO");
    guion->Espera("Mantenedor de Profesores", vbOK);
    f.XPButton1_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Desea Eliminar al Profesor BETO");
    // COUNT gives 2, so 3; 3 is taken, so 4.
    f.TxtNombre->setText("O'NEILL");
    guion->Espera("Mantenedor de Profesores");
    f.XPButAceptar_Click();
    EXPECT_EQ(Filas("select * from Profesores order by rut"),
              QStringList({"ANA|1", "CARLA|3", "O'NEILL|4"}));
    ASSERT_EQ(f.SprProfesores.MaxRows(), 3);
    EXPECT_EQ(f.SprProfesores.Celda(3, 1), "O'NEILL");

    // Replacing draws the number while the old row still counts: COUNT 3, so 4; 4 taken, so 5.
    f.SprProfesores_Click(1);
    guion->Espera("Mantenedor de Profesores", vbOK);
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto,
              "El Profesor existe en la base de datos, desea reemplazarlo");
    EXPECT_EQ(Filas("select * from Profesores order by rut"),
              QStringList({"CARLA|3", "O'NEILL|4", "ANA|5"}));
}

TEST_F(Listas, TeacherNameIsRequiredAndNumberBoxFiltersKeys) {
    FrmProfesores f;
    guion->Espera("Mantenedores en General");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Debe ingresar el nombre del Profesor");
    Teclea(f.TxtRut, "12a-kK3");
    EXPECT_EQ(f.TxtRut->text(), "12-k3");
}

TEST_F(Listas, LoadsTakeAtMost100RowsFromColumnA) {
    FrmProfesores p;
    guion->EsperaArchivo(Lista("profesores_150.xlsx"));
    guion->Espera("Mantenedor de Profesores");
    p.CmdCarga_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Se han insertado 100 Profesores");
    EXPECT_EQ(Valor("select count(*) from Profesores").toInt(), 100);
    EXPECT_EQ(Filas("select * from Profesores where rut in (1, 2, 100) order by rowid"),
              QStringList({"PÉREZ JUAN|1", "D'ANGELO MARÍA|2", "PROFESOR 100|100"}));
    EXPECT_EQ(p.SprProfesores.MaxRows(), 100);

    Valor("insert into Asignaturas values (7, 'VIEJA')");
    FrmAsignatura a;
    guion->EsperaArchivo(Lista("asignaturas.xlsx"));
    guion->Espera("Mantenedor de Asignaturas");
    a.CmdCarga_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Se han insertado 3 Asignaturas");
    EXPECT_EQ(Filas("select * from Asignaturas"),
              QStringList({"1|MATEMÁTICA", "2|LENGUAJE Y COMUNICACIÓN", "3|HISTORIA"}));
    EXPECT_EQ(a.LstAsiganturas->count(), 3);
}

TEST_F(Listas, FileChoiceWordsOfEachScreen) {
    FrmProfesores p;
    FrmAsignatura a;
    const std::vector<std::pair<std::function<void()>, const char*>> casos = {
        {[&] { p.CmdCarga_Click(); }, "El archivo seleccionado no es extensión xls, verifique"},
        {[&] { a.CmdCarga_Click(); }, "El archjivo seleccionado no es extension Xls, verifique"},
    };
    for (const auto& [carga, palabras] : casos) {
        guion->EsperaArchivo("");
        guion->Espera("Mantenedor de Profesores");
        carga();
        EXPECT_EQ(guion->cajas.back().texto, "No se ha seleccionado ningún archivo");
        guion->EsperaArchivo(Ruta("lista.csv"));
        guion->Espera("Mantenedor de Profesores");
        carga();
        EXPECT_EQ(guion->cajas.back().texto, palabras);
    }
}

TEST_F(Listas, CourseSaveDrawsTheCounterAndReplaceFailsOnTableCurso) {
    FrmCursos f;
    guion->Espera("Mantenedores en general");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Debe ingresar Curso");
    f.TxtCurso->setText("4° MEDIO CIENTÍFICO B");
    guion->Espera("Mantenedores en general");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Debe Seleccionar un nivel Curso");

    f.CboNivel->setCurrentIndex(13);  // "4° Medio", level 14
    guion->Espera("Mantenedor de Cursos");
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "El Curso se ha creado con éxito en la base de datos");
    EXPECT_EQ(Filas("select * from CURSOS"), QStringList{"4° MEDIO CIENTÍFICO B|14|1"});
    EXPECT_TRUE(f.TxtCurso->text().isEmpty());

    // A click gives the first 15 characters and the key behind "@".
    f.LstCursos->setCurrentRow(0);
    EXPECT_EQ(f.TxtCurso->text(), "4° MEDIO CIENTÍ");
    EXPECT_EQ(f.TxtNivel->text(), "1");

    f.TxtCurso->setText("4° MEDIO CIENTÍFICO B");
    f.CboNivel->setCurrentIndex(13);
    guion->Espera("Mantenedor de Cursos", vbOK);
    guion->Espera("Error de ejecución");
    EXPECT_FALSE(Comando([&] { f.XPButAceptar_Click(); }));
    EXPECT_EQ(guion->cajas[3].texto, "El curso existe en la base de datos, desea reemplazarlo");
    EXPECT_TRUE(guion->cajas.back().texto.contains("curso"))
        << guion->cajas.back().texto.toStdString();
    EXPECT_EQ(Filas("select * from CURSOS"), QStringList{"4° MEDIO CIENTÍFICO B|14|1"});
    EXPECT_EQ(Valor("select valor_indice from indice_general where tipo_indice = 'CURSO'").toInt(),
              2);

    guion->Espera("Mantenedor de Cursos", vbOK);
    f.XPButton1_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Desea Eliminar el Curso 4° MEDIO CIENTÍFICO B");
    EXPECT_EQ(Valor("select count(*) from CURSOS").toInt(), 0);
}

TEST_F(Listas, LevelBoxTakesDigitsAndMayNotBeLeftBlank) {
    FrmCursos f;
    Teclea(f.TxtNivel, "1a2-");
    EXPECT_EQ(f.TxtNivel->text(), "12");
    f.TxtNivel->clear();
    guion->Espera("Mantenedor de Cursos");
    f.TxtNivel_LostFocus();
    EXPECT_EQ(guion->cajas.back().texto, "No puede dejar el nivel en blanco");
}

TEST_F(Listas, SubjectSaveAddsOrRenamesAndDeleteLeavesTests) {
    Valor(
        "insert into prueba_rj (IdPrueba, NombrePrueba, Asignatura) values (5, 'P', 'MATEMÁTICA')");
    FrmAsignatura f;
    f.XPButAceptar_Click();  // an empty name does nothing
    f.TxtNombre->setText("MATEMÁTICA");
    guion->Espera("Mantenedor de Asignaturas", vbCancel);  // the box has only OK: no refusal
    f.XPButAceptar_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Desea agregar la nueva Asignatura MATEMÁTICA");
    EXPECT_EQ(guion->cajas.back().estilo, vbInformation);
    f.TxtNombre->setText("ARTES D'AUTOR");
    guion->Espera("Mantenedor de Asignaturas");
    f.XPButAceptar_Click();
    EXPECT_EQ(Filas("select * from Asignaturas"), QStringList({"1|MATEMÁTICA", "2|ARTES D'AUTOR"}));

    f.LstAsiganturas_DblClick(0);
    f.TxtNombre->setText("ÁLGEBRA" + f.TxtNombre->text().mid(f.TxtNombre->text().indexOf("  ")));
    guion->Espera("Mantenedor de Asignaturas");
    f.XPButAceptar_Click();
    EXPECT_EQ(Filas("select * from Asignaturas"), QStringList({"1|ÁLGEBRA", "2|ARTES D'AUTOR"}));

    f.LstAsiganturas->setCurrentRow(0);
    guion->Espera("mantenedor de Asignaturas", vbOK);
    f.XPButton1_Click();
    EXPECT_EQ(guion->cajas.back().texto, "Desea Eliminar la Asignatura  ÁLGEBRA");
    EXPECT_EQ(Filas("select * from Asignaturas"), QStringList{"2|ARTES D'AUTOR"});
    EXPECT_EQ(Valor("select Asignatura from prueba_rj where IdPrueba = 5").toString(),
              "MATEMÁTICA");
}

}  // namespace
