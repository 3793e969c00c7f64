// Pictures of the main screens for the user guide, written only when ZORTA_CAPTURAS names a
// folder: the test list with results, the open menu, test creation, key entry, the matrix.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>

#include "app/estado.h"
#include "app/screens/mdi_main.h"
#include "grading/screens/frm_correc_pru.h"
#include "platform/base_datos.h"
#include "reading/generador_hoja.h"
#include "reading/lectura_hoja.h"
#include "reading/screens/frm_imagen.h"
#include "platform/screens/navegacion.h"
#include "setup/screens/frm_gene_pru.h"
#include "setup/screens/frm_ing_manual.h"
#include "setup/screens/frm_matriz_resp_correc.h"
#include "support/base_temporal.h"

namespace {

class Capturas : public BaseArrancada {
protected:
    void SetUp() override {
        if (qEnvironmentVariableIsEmpty("ZORTA_CAPTURAS")) GTEST_SKIP() << "ZORTA_CAPTURAS no indicado";
        BaseArrancada::SetUp();
        Llena();
    }
    void Llena() {
        Ejecuta("insert into Profesores values ('Ana Díaz Rojas', '1')");
        Ejecuta("insert into Asignaturas values (1, 'Historia y Geografía')");
        Ejecuta("insert into CURSOS values ('2° Medio B', 12, 1)");
        Ejecuta("insert into ejes values (1, 'Edad Media', 'Historia y Geografía', 'GENERAL')");
        Ejecuta("insert into objetivos values (1, 'Analizar', 'Relacionar causas y efectos', 'Activo')");
        Ejecuta("insert into prueba_rj values (1, 'Diagnóstico', 'GENERAL', 'Ana Díaz Rojas', 'Historia y Geografía', "
                "'2° Medio B', 1, '02-03-2026', 30, 0, 5, 'S', null)");
        Ejecuta("insert into prueba_rj values (2, 'Unidad 1: Edad Media', 'GENERAL', 'Ana Díaz Rojas', "
                "'Historia y Geografía', '2° Medio B', 2, '20-04-2026', 30, 0, 5, 'S', null)");
        const QStringList ruts = {"5126663-3", "11111111-1", "12345678-4", "22222222-2", "13456789-K", "7654321-6"};
        for (int i = 0; i < ruts.size(); ++i)
            Ejecuta("insert into ResultadoAlumnos_rj values (2, ?, ?, ?, ?, 0, 0, ?, 0, ?, ?)",
                    {ruts[i], 18 + i, 10 - i, 2, 3.5 + i * 0.6, (18 + i) * 100 / 30, i == 5 ? 99 : 1 + i % 2});
        for (int p = 1; p <= 30; ++p) {
            Ejecuta("insert into Resp_preguntas_pautas values (2, ?, 1, ?)", {p, p % 5 + 1});
            Ejecuta("insert into NEW_EJE_TEMATICO values (?, 2, ?, 'Edad Media', 'Analizar', 1, 'GENERAL')", {p, p});
        }
    }
    static QString Ruta(const QString& nombre) { return QDir(qEnvironmentVariable("ZORTA_CAPTURAS")).filePath(nombre); }
    static void Guarda(QWidget& w, const QString& nombre) {
        w.show();
        QCoreApplication::processEvents();
        EXPECT_TRUE(w.grab().save(Ruta(nombre)));
    }
};

}  // namespace

TEST_F(Capturas, ListaConResultadosYMenu) {
    MdiMain m;
    m.resize(1280, 800);
    m.show();
    auto* lista = qobject_cast<frmCorrecPru*>(m.Muestra_Pantalla("frmCorrecPru"));
    lista->SprPrincipal_Click(1);
    lista->parentWidget()->resize(1200, 700);
    QCoreApplication::processEvents();
    EXPECT_TRUE(m.grab().save(Ruta("frm_correc_pru.png")));
    // The open "Archivo" menu drawn over the window where it drops.
    QMenu* archivo = m.Accion("mnu_file")->menu();
    QMenu* prueba = m.Accion("mnu_Prueba")->menu();
    const QPoint bajo = m.menuBar()->actionGeometry(m.Accion("mnu_file")).bottomLeft() + m.menuBar()->pos();
    archivo->popup(m.mapToGlobal(bajo));
    prueba->popup(m.mapToGlobal(bajo) + QPoint(archivo->sizeHint().width(), 0));
    QCoreApplication::processEvents();
    QPixmap imagen = m.grab();
    QPainter pintor(&imagen);
    pintor.drawPixmap(bajo, archivo->grab());
    pintor.drawPixmap(bajo + QPoint(archivo->sizeHint().width(), 0), prueba->grab());
    pintor.end();
    EXPECT_TRUE(imagen.save(Ruta("menu_archivo.png")));
    archivo->close();
    prueba->close();
}

TEST_F(Capturas, CreacionPautaYMatriz) {
    FrmGenePru nueva;
    nueva.TxtNombre->setText("Unidad 2: Renacimiento");
    nueva.CmbProfe->setCurrentIndex(0);
    nueva.CmbAsig->setCurrentIndex(0);
    nueva.CmbCurso->setCurrentIndex(0);
    nueva.CmbPreSelMul->setCurrentIndex(29);
    nueva.CmbNunAlterxpreg->setCurrentIndex(3);
    nueva.CmbNumForma->setCurrentIndex(1);
    Guarda(nueva, "frm_gene_pru.png");

    Estado& e = estado();
    e.Id_Prueba_Actual = 3;
    e.Preguntas_Actual = 30;
    e.Numero_Formas_Actual = 2;
    e.Ptje_Max_Actual = 5;
    frmCorrecPru lista;
    lista.SprPrincipal_Click(1);
    navegacion().abierta = [&](const QString& n) -> QWidget* { return n == "frmCorrecPru" ? &lista : nullptr; };
    Carga_Ingreso_Manual();
    navegacion() = Navegacion{};
    FrmIngManual manual;
    manual.CmbNFormas->setCurrentIndex(0);
    for (int p = 1; p <= 12; ++p) manual.SprAlterPreg.FijaCelda(p, 2, QString(QChar(u'A' + p % 5)));
    Guarda(manual, "frm_ing_manual.png");

    e.Id_Prueba_Actual = 2;
    e.Numero_Formas_Actual = 1;
    e.Nombre_Prueba_Actual = "Unidad 1: Edad Media";
    e.Asignatura_Actual = "Historia y Geografía";
    e.Tipo_Prueba_Actual = "GENERAL";
    FrmMatrizRespCorrec matriz;
    Guarda(matriz, "frm_matriz_resp_correc.png");
}

TEST_F(Capturas, HojaEnLectura) {
    Estado& e = estado();
    e.Id_Prueba_Actual = 2;
    e.Numero_Formas_Actual = 2;
    e.Preguntas_Actual = 30;
    e.Corrige_Pruebas = true;
    DisenoHoja d;
    d.formas = {1};
    d.rut = "123456785";
    for (int p = 1; p <= 30; ++p) d.respuestas.push_back({p, 1 + p % 5});
    d.rotacion = 0.4;
    const QString ruta = Ruta("hoja001.bmp");
    Dibuja_Hoja(d).Guarda_Bmp(ruta);
    const Imagen imagen = Abre_Hoja(ruta);
    FrmImagen f;
    f.resize(1200, 760);
    CorridaLectura& c = f.corrida();
    c.hoja = Lee_Hoja(imagen, {30, 5, true});
    c.Ruta_Hoja = ruta;
    c.c.TxtForma = QString::number(c.hoja.forma);
    c.c.TxtRut = c.hoja.rut;
    c.lbl_CantidadHojas = 28;
    c.lbl_Leidas = 12;
    c.resumen.leidas = 12;
    const auto& m = c.hoja.filas[0];
    c.c.List1 = {QString("%1 ; %2   %3 ; %4").arg(m.X).arg(m.Y).arg(m.X1).arg(m.Y1),
                 QString("diferencia : %1").arg(m.X1 - m.X)};
    Grilla& letras = c.c.SprRespuesta_Correctas;
    letras.SetMaxRows(int(c.hoja.respuestas.size()));
    for (int i = 1; i <= letras.MaxRows(); ++i) {
        letras.FijaCelda(i, 1, QString::number(i));
        letras.FijaCelda(i, 2, QString(QChar(c.hoja.respuestas[i - 1])));
    }
    f.Hoja_En_Mano(c, imagen);
    Guarda(f, "frm_imagen.png");
}
