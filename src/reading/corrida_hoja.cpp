// One sheet of the reading run: marks, form, rut with its dialogue, answers, then the sheet
// stored (student or key) in one transaction, and only after the commit its image removed.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <utility>

#include "app/estado.h"
#include "grading/persistencia_respuestas.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/error_ejecucion.h"
#include "platform/numeros.h"
#include "reading/corrida_lectura.h"
#include "store/rut.h"

namespace {

void Aviso(const QString& texto, const QString& titulo) {
    dialogos().MsgBox(texto, vbOKOnly, titulo);
}

const QString kGrabarMatriz = QStringLiteral("Grabar Matriz");

}  // namespace

CorridaLectura::Paso CorridaLectura::Procesa_Hoja(const QString& nombre) {
    const Estado& e = estado();
    Imagen imagen;
    try {
        imagen = Abre_Hoja(Ruta_Hoja);
    } catch (const ErrorEjecucion& error) {
        throw ErrorEjecucion(QStringLiteral("No se pudo abrir la hoja %1: %2. Retire la hoja %1 "
                                            "de la carpeta de escaneo y vuelva a corregir.")
                                 .arg(nombre, error.texto()));
    }
    ++Hojas_Vistas;
    ++lbl_Leidas;
    ++resumen.leidas;
    c.List1.clear();
    Hubo_Imagen = true;
    LecturaHoja l(imagen, {e.Preguntas_Actual, e.Alternativas_Actual, !e.Lee_Pauta});
    hoja = l.r;
    observador_->Hoja_En_Mano(*this, imagen);
    if (const Paso p = Registra_Hoja(l, nombre); p != Paso::Sigue) return p;
    CmdLimpiaGrilla();
    Espera(0.3);
    if (!l.Lee_Forma()) return Fallo_C();
    hoja = l.r;
    c.TxtForma = CStr(l.r.forma);
    if (const Paso p = Verifica_Forma(); p != Paso::Sigue) return p;
    ++Hojas_Corregidas;
    if (!e.Lee_Pauta) {
        c.TxtRut.clear();
        Txt_Rut_2.clear();
        if (!l.Lee_Rut()) return Fallo_C();
        // A rut with nothing marked is an empty text, never a null one.
        c.TxtRut = l.r.rut.isNull() ? QLatin1String("") : l.r.rut;
        Txt_Rut_2 = QString(c.TxtRut).remove(QLatin1Char('-'));
        Avisa();
        if (const Paso p = Dialogo_Rut(); p != Paso::Sigue) return p;
    }
    if (const Paso p = Lee_Respuestas(l); p != Paso::Sigue) return p;
    return e.Lee_Pauta ? Guarda_Pauta() : Guarda_Hoja();
}

CorridaLectura::Paso CorridaLectura::Registra_Hoja(LecturaHoja& l, const QString& nombre) {
    int anotadas = 0;
    const bool ok = l.Registra([&](int fila, const Marcas& m) {
        anotadas = fila;
        if (fila == 1 && l.r.marcas_grandes) lbl_CantidadHojas_Rojo = true;
        Anota_Fila(fila, m);
    });
    hoja = l.r;
    Error_Lectura = !ok;
    Avisa();
    if (ok) return Paso::Sigue;
    if (l.r.fallo == Fallo::B) return Fallo_B();
    if (anotadas < 3) return Fallo_A(nombre);
    // The fourth mark: the sheet goes (silently when the search itself failed), and a key run
    // loses its key and stops.
    ++resumen.fallidas;
    if (!l.r.sin_aviso) Fallo_A_Aviso(nombre);
    if (!estado().Lee_Pauta) return Paso::Siguiente;
    Elimina_Hoja(false);
    Eliminar_Pautas_Anteriores_Existentes();
    return Paso::Para;
}

// List1: a title (none for the first row), the left mark "x ; y", the right one, the distance.
void CorridaLectura::Anota_Fila(int fila, const Marcas& m) {
    static const char* const kTitulos[] = {"", "SEGUNDO CUADRO", "TERCER CUADRO", "CUARTO CUADRO"};
    if (fila > 1) c.List1 << QString::fromLatin1(kTitulos[fila - 1]);
    c.List1 << CStr(int(m.X)) + QStringLiteral(" ; ") + CStr(int(m.Y))
            << CStr(int(m.X1)) + QStringLiteral(" ; ") + CStr(int(m.Y1))
            << QStringLiteral("diferencia : ") + CStr(m.distancia());
    Avisa();
    if (fila <= 2) Espera(0.3);
}

void CorridaLectura::Fallo_A_Aviso(const QString& nombre) {
    Aviso(Lineas({QStringLiteral(
                      "La hoja esta fuera de los margenes maximos permitidos para la lectura."),
                  QStringLiteral("La prueba ") + nombre +
                      QStringLiteral(" sera eliminada, favor tome nota de esta prueba."),
                  QStringLiteral("El proceso continuara en forma rormal")}),
          QStringLiteral("Corrector ZORTA"));
}

CorridaLectura::Paso CorridaLectura::Fallo_A(const QString& nombre) {
    ++resumen.fallidas;
    Fallo_A_Aviso(nombre);
    if (!estado().Lee_Pauta) return Paso::Siguiente;
    Eliminar_Pautas_Anteriores_Existentes();
    return Paso::Para;
}

CorridaLectura::Paso CorridaLectura::Fallo_B() {
    ++resumen.fallidas;
    Aviso(QStringLiteral(
              "Ha ocurrido un error en esta lectura, favor anote el Alumno y vuelva a corregir"),
          QStringLiteral("Correcto ZORTA"));
    if (Caption_Corregir == kGrabarMatriz) {
        Hubo_Imagen = false;
        if (estado().Lee_Pauta) {
            Eliminar_Pautas_Anteriores_Existentes();
            Elimina_Hoja(false);
            return Paso::Para;
        }
    }
    return Paso::Siguiente;
}

// The reader has already shown its words.
CorridaLectura::Paso CorridaLectura::Fallo_C() {
    ++resumen.fallidas;
    Error_Lectura = true;
    Avisa();
    if (!estado().Lee_Pauta) return Paso::Siguiente;
    Elimina_Hoja(false);
    Eliminar_Pautas_Anteriores_Existentes();
    return Paso::Para;
}

CorridaLectura::Paso CorridaLectura::Verifica_Forma() {
    const Estado& e = estado();
    if (!e.Lee_Pauta && c.TxtForma == QLatin1String("99")) {
        Recordset rs = e.BaseDatos->OpenRecordset(
            QStringLiteral("select Numero_Forma from prueba_rj where idprueba = ?"),
            {e.Id_Prueba_Actual});
        if (rs.Eof()) {
            Aviso(QStringLiteral("No existe información de la forma en la Base de Datos"),
                  QStringLiteral("Ingreso Prueba"));
            return Paso::Para;
        }
        const int formas = rs[0].toInt();
        if (formas == 1)
            c.TxtForma = QStringLiteral("1");
        else if (formas < 1)
            Aviso(QStringLiteral("Existe mas de una forma para esta prueba, no se puede realizar "
                                 "la asignacion automatica"),
                  QStringLiteral("Ingreso Prueba"));
    }
    if (Caption_Corregir == kGrabarMatriz && c.TxtForma == QLatin1String("99")) {
        Aviso(QStringLiteral(
                  "Ud. está ingresando una pauta fin FORMA, marque forma y repita el proceso"),
              QStringLiteral("Ingreso de Pauta"));
        return Paso::Para;
    }
    Avisa();
    return Paso::Sigue;
}

CorridaLectura::Paso CorridaLectura::Lee_Respuestas(LecturaHoja& l) {
    Espera(0.3);
    if (!l.Lee_Respuestas()) return Fallo_C();
    if (!l.r.marcas_grandes && estado().Preguntas_Actual >= 51) Espera(0.3);
    if (!l.Lee_Respuestas_Tercera()) return Fallo_C();
    hoja = l.r;
    Carga_Tabla();
    return Paso::Sigue;
}

// SprRespuesta_Correctas: row i question i, column 2 its letter; no spare row.
void CorridaLectura::Carga_Tabla() {
    Grilla& g = c.SprRespuesta_Correctas;
    g.SetMaxRows(int(hoja.respuestas.size()));
    for (int i = 1; i <= g.MaxRows(); ++i) {
        g.FijaCelda(i, 1, CStr(i));
        g.FijaCelda(i, 2, QString(QLatin1Char(hoja.respuestas[i - 1])));
    }
    Avisa();
}

// The sheet counts as stored only once its rows are committed.
CorridaLectura::Paso CorridaLectura::Guarda_Hoja() {
    Transaccion t(*estado().BaseDatos);
    const bool grabada = Graba_Alumno();
    t.Confirma();
    if (grabada) {
        ++resumen.guardadas;
        guardada_ = true;
    }
    return Paso::Siguiente;
}

CorridaLectura::Paso CorridaLectura::Guarda_Pauta() {
    const Estado& e = estado();
    Transaccion t(*estado().BaseDatos);
    c.Preguntas_Omitidas.clear();
    c.Preguntas_Nulas.clear();
    Varifica_Pauta_Grabada(c);
    if (Hay_Preguntas_Abiertas()) return t.Confirma(), Paso::Para;
    Pautas_Grabadas = CInt(Pautas_Grabadas + 1);
    if (Pautas_Grabadas == e.Numero_Formas_Actual) Cambia_Estado_Pauta();
    c.Pauta_Rechazada = false;
    Graba_Prueba_Base_Pauta(c);
    if (c.Pauta_Rechazada) {
        c.SprRespuesta_Correctas.SetMaxRows(1);
        t.Confirma();
        Elimina_Hoja(false);
        return Paso::Para;
    }
    if (Pautas_Grabadas == e.Numero_Formas_Actual)
        Aviso(QStringLiteral("UD. ha grabado ") + CStr(int(Pautas_Grabadas)) +
                  QStringLiteral(" de : ") + CStr(int(e.Numero_Formas_Actual)),
              QStringLiteral("Graba Pautas"));
    Graba_Alumno();
    t.Confirma();
    ++resumen.guardadas;
    guardada_ = true;
    return Paso::Siguiente;
}

// A key with omitted or null questions is refused, and the test's keys go with it.
bool CorridaLectura::Hay_Preguntas_Abiertas() {
    QString texto;
    if (!c.Preguntas_Omitidas.isEmpty())
        texto = QStringLiteral("Existe alternativas Omitidas  :") + c.Preguntas_Omitidas;
    else if (!c.Preguntas_Nulas.isEmpty())
        texto = QStringLiteral("Existe alternativas Nulas  :") + c.Preguntas_Nulas;
    else
        return false;
    Aviso(Lineas({texto, QStringLiteral(" marque las alternativas y vuelva a escanear la prueba")}),
          QStringLiteral("Ingreso de Pauta"));
    Eliminar_Pautas_Anteriores_Existentes();
    return true;
}

// Both kinds of run store the sheet as a student's; a refused replacement then deletes the
// rows the operator meant to keep, as the system does. True when the sheet's rows stay.
bool CorridaLectura::Graba_Alumno() {
    if (estado().Agrega_Actual) c.Lst_Recorreccion << c.TxtRut;
    Graba_Prueba_Alumnos(c);
    if (!c.Rut_No_Reemplazado) return true;
    Elimina_Prueba_Cargada(c);
    return false;
}

// Step 18. A stored student sheet stays in the folder until the next one is committed or the
// run's grading is: a run stopped in between meets it again.
void CorridaLectura::Retira_Hoja() {
    if (!guardada_ || estado().Lee_Pauta) return Elimina_Hoja(guardada_);
    Elimina_Pendiente();
    pendiente_ = Ruta_Hoja;
}

void CorridaLectura::Elimina_Hoja(bool guardada) {
    Elimina_Archivo(Ruta_Hoja, guardada);
}

void CorridaLectura::Elimina_Pendiente() {
    const QString ruta = std::exchange(pendiente_, QString());
    if (!ruta.isEmpty()) Elimina_Archivo(ruta, true);
}

// The sheet leaves the folder once its rows are committed. A read-only or locked file stops
// the run, so that it is not read and stored again unnoticed.
void CorridaLectura::Elimina_Archivo(const QString& ruta, bool guardada) {
    if (!QFileInfo::exists(ruta)) return;
    const QString nombre = QFileInfo(ruta).fileName();
    if (!guardada && !Carpeta_Apartadas.isEmpty()) {
        const QString destino = QDir(Carpeta_Apartadas).filePath(nombre);
        QFile::remove(destino);
        if (QDir().mkpath(Carpeta_Apartadas) && QFile::rename(ruta, destino)) return;
    } else if ((QFile::permissions(ruta) & QFileDevice::WriteOwner) && QFile::remove(ruta)) {
        return;
    }
    throw ErrorEjecucion(
        QStringLiteral(
            "No se pudo eliminar la hoja %1 de la carpeta de escaneo (archivo de solo lectura o "
            "en uso). %2Quítela de la carpeta antes de volver a corregir.")
            .arg(nombre,
                 guardada ? QStringLiteral("Sus respuestas ya quedaron grabadas. ") : QString()));
}
