// The reading run's commands: opening checks, the scan hand-over, the walk over the folder,
// and the end of the run with its grading and closing messages.
#include "reading/corrida_lectura.h"

#include <QDir>

#include "app/estado.h"
#include "grading/correccion_alumnos.h"
#include "grading/escala_notas.h"
#include "grading/persistencia_respuestas.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"
#include "reading/escaner.h"
#include "store/nota_minima.h"

namespace {

BaseDatos& Base() {
    return *estado().BaseDatos;
}

void Aviso(const QString& texto, const QString& titulo) {
    dialogos().MsgBox(texto, vbOKOnly, titulo);
}

}  // namespace

CorridaLectura::CorridaLectura(ObservadorCorrida* observador)
    : observador_(observador ? observador : &nulo_) {}

bool CorridaLectura::Form_Load() {
    Estado& e = estado();
    if (!e.Seteo_Hoja) {
        if (e.Id_Prueba_Actual == 0) {
            Aviso(QStringLiteral(
                      "No tiene número de prueba asociado, selecione una prueba para visualizar"),
                  QStringLiteral("Analisis Cualitativo"));
            return false;
        }
        if (!Verifica_Pauta_Declarada()) return false;
    } else {
        Caption_Carga = QStringLiteral("Escanear Pauta");  // the captions below write over it
    }
    Caption_Carga =
        e.Corrige_Pruebas ? QStringLiteral("Escanear Pruebas") : QStringLiteral("Escanear Matriz");
    Caption_Corregir =
        e.Corrige_Pruebas ? QStringLiteral("Corregir Pruebas") : QStringLiteral("Grabar Matriz");
    e.Corrige_Pruebas = false;
    if (e.Preguntas_Actual == 0) {
        Recordset rs = Base().OpenRecordset(
            QStringLiteral("select * from prueba_rj where idprueba = ?"), {e.Id_Prueba_Actual});
        if (rs.Eof())
            Aviso(QStringLiteral("No existe información en la Base de Datos"),
                  QStringLiteral("Ingreso Prueba"));
        else
            e.Preguntas_Actual = CInt(rs[8].toDouble());
    }
    Avisa();
    return true;
}

// A test declared with its key entered must have key rows for its number of forms; without
// them the key is marked as missing and the screen can do nothing.
bool CorridaLectura::Verifica_Pauta_Declarada() {
    const Estado& e = estado();
    Recordset rs =
        Base().OpenRecordset(QStringLiteral("select nombreprueba from prueba_rj where idprueba = ? "
                                            "and formas = ? and ingreso_pauta = 'S'"),
                             {e.Id_Prueba_Actual, e.Numero_Formas_Actual});
    if (rs.Eof()) return true;
    const QString nombre = rs[0].toString();
    rs.Close();
    Recordset n = Base().OpenRecordset(
        QStringLiteral(
            "select count(*) from resp_preguntas_pautas where idprueba = ? and forma = ?"),
        {e.Id_Prueba_Actual, e.Numero_Formas_Actual});
    if (n[0].toInt() != 0) return true;
    Aviso(Lineas({QStringLiteral("La prueba"),
                  nombre.toUpper() + QStringLiteral(" NO tiene pauta de respuesta asociada"),
                  QStringLiteral(" Favor cree esta pauta y repita el proceso")}),
          QStringLiteral("Correción de Pruebas"));
    CmdCarga_Lee_Enabled = CmdCorregir_Pruebas_Enabled = false;
    Base().Execute(QStringLiteral("update prueba_rj set ingreso_pauta = 'N' where idprueba = ?"),
                   {e.Id_Prueba_Actual});
    observador_->Descarga_Lista();
    Avisa();
    return false;
}

QString CorridaLectura::Carpeta_Escaneo() const {
    return Carpeta_Forzada.isEmpty() ? Linea_Scaner_Ini(1) : Carpeta_Forzada;
}

void CorridaLectura::CmdCarga_Lee() {
    Carpeta = Carpeta_Escaneo();
    const QString programa = Linea_Scaner_Ini(2);
    Avisa();
    Elimina_Bitmaps(Carpeta);
    Inicia_Escaner(programa);
}

void CorridaLectura::CmdLimpiaGrilla() {
    Grilla& g = c.SprRespuesta_Correctas;
    for (int i = 1; i <= g.MaxRows(); ++i)
        for (int j = 1; j <= g.MaxCols(); ++j) g.FijaCelda(i, j, QStringLiteral("0"));
    Avisa();
}

void CorridaLectura::CmdCorregir_Pruebas() {
    c.Cant_No_Reemplazados = 0;
    Hubo_Imagen = false;
    c.List1.clear();
    resumen = {};
    Carpeta = Carpeta_Escaneo();
    CmdCorregir_Pruebas_Enabled = false;
    Avisa();
    estado().Nota_Minima_Actual = Fnc_Lee_Nota_Minima();
    if (estado().Nota_Minima_Actual == 0) {
        Aviso(
            QStringLiteral(
                "No existe valor minimo de notas , verifique en Utilidades, Nivel de Evaluación."),
            QStringLiteral("Indicar Minimo de Notas"));
        CmdCarga_Lee_Enabled = CmdCorregir_Pruebas_Enabled = false;
        return Avisa();
    }
    const QStringList archivos = Archivos_Carpeta(Carpeta);
    Hojas_Corregidas = 0;
    Hojas_Vistas = -1;
    lbl_CantidadHojas = 0;
    lbl_CantidadHojas_Rojo = false;
    for (const QString& nombre : archivos)
        if (Es_Bitmap(nombre)) ++lbl_CantidadHojas;
    Avisa();
    for (const QString& nombre : archivos) {
        Ruta_Hoja = QDir(Carpeta).filePath(nombre);
        if (!Es_Bitmap(Ruta_Hoja)) continue;
        guardada_ = false;
        if (Procesa_Hoja(nombre) == Paso::Para) {
            Elimina_Pendiente();
            return Avisa();
        }
        Retira_Hoja();
    }
    resumen.completa = true;
    Fin_Corrida();
}

void CorridaLectura::Fin_Corrida() {
    if (c.Rut_No_Reemplazado) {
        // Only the last sheet's refusal brings the earlier ones off the count.
        Hojas_Corregidas = CInt(Hojas_Corregidas - c.Cant_No_Reemplazados);
        if (Hojas_Corregidas == 0) return Sin_Correccion();
    }
    if (estado().Lee_Pauta) return Fin_Pauta();
    if (Hojas_Corregidas <= 0) return Sin_Correccion();
    // Graded and committed before the last stored sheet leaves the folder: a run stopped while
    // grading meets that sheet again, and grades.
    {
        Transaccion t(*estado().BaseDatos);
        Calcula_Notas_Tabla(c.Notas);
        Resultados_Alumnos_Pruebas(c);
        t.Confirma();
    }
    Elimina_Pendiente();
    Avisa();
    Aviso(QStringLiteral("Se han Corregido la cantidad de ") + CStr(int(Hojas_Corregidas)) +
              QStringLiteral(" pruebas"),
          QStringLiteral("Fin Coreccion"));
    observador_->Cierra_Y_Muestra_Lista();
}

// The run ends without grading; the last stored sheet leaves the folder all the same.
void CorridaLectura::Sin_Correccion() {
    Elimina_Pendiente();
    Avisa();
}

void CorridaLectura::Fin_Pauta() {
    Estado& e = estado();
    if (!Hubo_Imagen) {
        Aviso(
            QStringLiteral(
                "La pauta NO se ha grabado, No existe imagen para su grabacion , favor verifique"),
            QStringLiteral("Lectura Pauta"));
        return observador_->Cierra_Y_Muestra_Lista();
    }
    if (e.Numero_Formas_Actual > 1) {
        Aviso(QStringLiteral("Las Pautas ha sido grabadas"), QStringLiteral("Fin Coreccion"));
        // Hojas_Vistas starts at -1: 0 means exactly one image.
        if (Hojas_Vistas == 0) {
            e.Lee_Pauta = false;
            return observador_->Cierra_Y_Muestra_Lista();
        }
        CmdCorregir_Pruebas_Enabled = false;
        observador_->Descarga_Lista();
        e.Lee_Pauta = false;
        return Avisa();
    }
    Cambia_Estado_Pauta();
    observador_->Descarga_Lista();
    Aviso(QStringLiteral("La Pauta ha sido grabada"), QStringLiteral("Fin Coreccion"));
    e.Lee_Pauta = false;
    observador_->Cierra_Y_Muestra_Lista();
}

void CorridaLectura::Avisa() {
    observador_->Actualiza(*this);
}

void CorridaLectura::Espera(double segundos) {
    observador_->Espera(segundos);
}

bool Alumno_Existe(const QString& rut) {
    return Base()
        .OpenRecordset(QStringLiteral("select primerapellido from ALUMNOS where Rut = ?"), {rut})
        .Eof();
}
