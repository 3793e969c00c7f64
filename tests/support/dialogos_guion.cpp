// Scripted boxes for tests.
#include "support/dialogos_guion.h"

#include <gtest/gtest.h>

void DialogosGuion::Espera(const QString& titulo, int respuesta) {
    guion_.push_back({QStringLiteral("MsgBox"), titulo, respuesta, {}});
}

void DialogosGuion::EsperaEntrada(const QString& titulo, const QString& texto) {
    guion_.push_back({QStringLiteral("InputBox"), titulo, vbOK, texto});
}

void DialogosGuion::EsperaArchivo(const QString& ruta) {
    guion_.push_back({QStringLiteral("Archivo"), {}, vbOK, ruta});
}

void DialogosGuion::EsperaSoloRut(const QString& rut) {
    guion_.push_back({QStringLiteral("Frm_SoloRrut"), QStringLiteral("Seleccione Rut Alumno"), vbOK, rut});
}

DialogosGuion::Paso DialogosGuion::Siguiente(const Caja& caja) {
    cajas.push_back(caja);
    if (guion_.empty()) {
        ADD_FAILURE() << "Caja inesperada [" << caja.titulo.toStdString() << "] " << caja.texto.toStdString();
        return {caja.tipo, caja.titulo, vbCancel, {}};
    }
    Paso p = guion_.front();
    guion_.pop_front();
    const bool archivo = caja.tipo.endsWith(QLatin1String("Archivo"));
    EXPECT_EQ(archivo ? QStringLiteral("Archivo") : caja.tipo, p.tipo) << caja.texto.toStdString();
    if (!archivo) {
        EXPECT_EQ(caja.titulo, p.titulo) << caja.texto.toStdString();
    }
    return p;
}

int DialogosGuion::MsgBox(const QString& texto, int estilo, const QString& titulo) {
    return Siguiente({QStringLiteral("MsgBox"), titulo, texto, estilo}).respuesta;
}

QString DialogosGuion::InputBox(const QString& pregunta, const QString& titulo, const QString&) {
    return Siguiente({QStringLiteral("InputBox"), titulo, pregunta, 0}).texto;
}

QString DialogosGuion::AbrirArchivo(const QString& titulo, const QString&) {
    return Siguiente({QStringLiteral("AbrirArchivo"), titulo, {}, 0}).texto;
}

QString DialogosGuion::GuardarArchivo(const QString& titulo, const QString&, const QString&) {
    return Siguiente({QStringLiteral("GuardarArchivo"), titulo, {}, 0}).texto;
}

QString DialogosGuion::Frm_SoloRrut(const QString& curso) {
    return Siguiente({QStringLiteral("Frm_SoloRrut"), QStringLiteral("Seleccione Rut Alumno"), curso, 0}).texto;
}

DialogosGuion& Instala_Guion() {
    auto guion = std::make_unique<DialogosGuion>();
    DialogosGuion& ref = *guion;
    Instala_Dialogos(std::move(guion));
    return ref;
}
