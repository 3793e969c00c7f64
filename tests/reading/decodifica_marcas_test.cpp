// Decoding: the answer codes, the borderline re-reads, the sample pattern and the rut.
#include "reading/decodifica_marcas.h"

#include <gtest/gtest.h>

#include "apoyo_hojas.h"

TEST(CodigoRespuesta, Umbrales) {
    struct Caso {
        std::vector<int> cuentas;
        char codigo;
    };
    const Caso casos[] = {
        {{30, 16, 0, 0, 0}, 'A'},  {{16, 17, 0, 0, 0}, 'N'}, {{14, 0, 0, 0, 0}, 'O'},
        {{30, 30, 0, 0, 0}, 'N'},  {{0, 0, 0, 0, 0}, 'O'},   {{0, 0, 0, 15, 0}, 'D'},
        {{16, 0, 38, 0, 20}, 'C'}, {{24, 0, 0, 0, 0}, 'A'},  {{12, 13, 14, 0, 0}, 'O'},
    };
    for (const Caso& c : casos) EXPECT_EQ(Codigo_Respuesta(c.cuentas), c.codigo);
}

namespace {

// A white page with the second row of marks of a level 852 sheet at (59, 578) and (911, 578).
Imagen Pagina_Nivelada() {
    Imagen im = Imagen::Blanca(1100, 1600);
    for (int y = 578; y < 604; ++y)
        for (int x = 0; x < 26; ++x) im.pinta(59 + x, y, 0, 0, 0), im.pinta(911 + x, y, 0, 0, 0);
    return im;
}

// Darkens the pixels of the sample pattern's first two lines around a point: 6 + 4 read
// once, and the 4 below the centre read again by the last line, 14 in all.
void Catorce(Imagen& im, int x, int y) {
    for (const int dx : {0, 2, 3, 4, 5, 6}) im.pinta(x + dx, y, 0, 0, 0);
    for (const int dy : {1, 2, 3, 4}) im.pinta(x, y + dy, 0, 0, 0);
}

}  // namespace

TEST(ConteoLecturas, LaUltimaLineaRepiteLaSegunda) {
    Imagen im = Pagina_Nivelada();
    for (const int dy : {1, 2, 3, 4}) im.pinta(300, 300 + dy, 0, 0, 0);
    for (const int dy : {-1, -2, -3, -4}) im.pinta(300, 300 + dy, 0, 0, 0);
    HojaEnLectura hoja(im);
    hoja.Nivel_Gris = 180;
    EXPECT_EQ(Conteo_Lecturas(hoja, 300, 300), 8);  // above the centre is never sampled
    EXPECT_EQ(Conteo_Lecturas(hoja, 2, 2), 0);      // reads outside the image add nothing
}

TEST(LeeAlternativas, RelecturasDelLimite) {
    Imagen im = Pagina_Nivelada();
    Catorce(im, 96, 673);  // question 1, A, on the block of 852
    HojaEnLectura hoja(im);
    hoja.Nivel_Gris = 180;
    std::vector<char> respuestas;
    const Marcas nivel{59, 578, 911, 578};
    lee_alternativas_version_2(hoja, nivel, 1, 2, 2, false, 0, respuestas);
    EXPECT_EQ(Texto(respuestas), "OO");
    // A level row leaves the pair as it stood: column 5, then 7.
    EXPECT_EQ(hoja.Par_Usado, 7);
    lee_alternativas_version_2(hoja, nivel, 1, 1, 2, false, 0, respuestas);
    EXPECT_EQ(hoja.Par_Usado, 7);  // 5 again after 7, then 7
}

TEST(LeeAlternativas, CuatroAlternativasNoMiranLaQuinta) {
    const ResultadoHoja r = Dibuja_Y_Lee(Hoja_Llena(866, false, "EABE"), 4, 4);
    EXPECT_EQ(Texto(r.respuestas), "OABO");
}

TEST(LeeSoloRut, Rarezas) {
    struct Caso {
        int distancia;
        QString rut;
        std::vector<std::pair<int, int>> extra;
        QString leido;
    };
    const Caso casos[] = {
        {870, QStringLiteral("12345678K"), {}, QStringLiteral("12345678-K")},
        {852, QStringLiteral("12345678K"), {}, QStringLiteral("1234567-8")},  // k looked for at 407
        {894, QStringLiteral("12345678K"), {}, QStringLiteral("1234567-8")},
        {870, QStringLiteral("12345678"), {{3, 9}}, QStringLiteral("1234567-8")},  // upper digit
        {870, QStringLiteral("K2345678"), {}, QStringLiteral("10234567-8")},  // the "10" leftover
        {870, QStringLiteral("1 3"), {}, QStringLiteral("1-3")},              // columns move up
        {870, QStringLiteral("7"), {}, QStringLiteral("-7")},
        {870, QString(), {}, QString()},
        {895, QStringLiteral("90812"), {}, QStringLiteral("970-1")},
    };
    for (const Caso& c : casos) {
        DisenoHoja h = Hoja_Llena(c.distancia, false, "", 1, c.rut);
        h.rut_extra = c.extra;
        EXPECT_EQ(Dibuja_Y_Lee(h).rut, c.leido) << c.distancia << " " << c.rut.toStdString();
    }
}

TEST(BuscaForma, UltimaMarcadaYRarezaDe887) {
    struct Caso {
        int distancia;
        std::vector<int> formas;
        int leida;
    };
    const Caso casos[] = {
        {870, {}, 99}, {870, {3}, 3}, {870, {1, 4, 2}, 4}, {887, {1}, 99}, {887, {2}, 2}};
    for (const Caso& c : casos) {
        DisenoHoja h = Hoja_Llena(c.distancia, false, "");
        h.formas = c.formas;
        EXPECT_EQ(Dibuja_Y_Lee(h).forma, c.leida) << c.distancia;
    }
}
