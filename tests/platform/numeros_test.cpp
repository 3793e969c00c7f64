// The number rules: ties to even on the exact binary value, loud 16-bit overflow, "." always.
#include <gtest/gtest.h>

#include <QLocale>
#include <clocale>

#include "platform/error_ejecucion.h"
#include "platform/numeros.h"

TEST(Numeros, RoundDecidesTiesOnTheStoredValue) {
    const struct {
        double x;
        int n;
        double esperado;
    } casos[] = {
        {2.25, 1, 2.2},   {2.35, 1, 2.4},   {2.675, 2, 2.67}, {0.5, 0, 0},     {1.5, 0, 2},
        {2.5, 0, 2},      {-2.5, 0, -2},    {-0.5, 0, -0},    {3.5, 0, 4},     {0.125, 2, 0.12},
        {0.375, 2, 0.38}, {4.45, 1, 4.5},   {1.005, 2, 1},    {3.14159, 4, 3.1416},
        {7, 1, 7},        {-2.675, 2, -2.67}, {1e20, 2, 1e20}, {0.0, 3, 0.0},
    };
    for (const auto& c : casos) EXPECT_EQ(Round(c.x, c.n), c.esperado) << c.x << " a " << c.n;
}

TEST(Numeros, IntegerConversionsRoundToEvenAndOverflowLoudly) {
    EXPECT_EQ(CInt(2.5), 2);
    EXPECT_EQ(CInt(3.5), 4);
    EXPECT_EQ(CInt(-1.5), -2);
    EXPECT_EQ(CInt(32767.4), 32767);
    EXPECT_EQ(CInt(-32768.5), -32768);
    EXPECT_THROW(CInt(32767.5), ErrorEjecucion);
    EXPECT_THROW(CInt(-32769), ErrorEjecucion);
    EXPECT_THROW(CInt(std::nan("")), ErrorEjecucion);
    EXPECT_EQ(CLng(40000.5), 40000);
    EXPECT_EQ(CLng(-2147483648.0), -2147483647 - 1);
    EXPECT_THROW(CLng(2147483647.5), ErrorEjecucion);
    EXPECT_EQ(CSng(0.1), 0.1f);
    EXPECT_THROW(CSng(1e300), ErrorEjecucion);
}

TEST(Numeros, ValTakesTheNumericPrefix) {
    const struct {
        const char* texto;
        double esperado;
    } casos[] = {
        {"12abc", 12}, {"abc", 0},     {" 4.5", 4.5}, {"4,5", 4},    {"", 0},     {"-3.25x", -3.25},
        {"1 2 3", 123}, {"7.", 7},     {".5", 0.5},   {"1e3", 1000}, {"2E", 2},   {"+8", 8},
        {"\t9", 9},    {"12345678-5", 12345678},      {"K", 0},      {"6.5 ", 6.5},
    };
    for (const auto& c : casos) EXPECT_DOUBLE_EQ(Val(QString::fromUtf8(c.texto)), c.esperado) << c.texto;
}

TEST(Numeros, CStrWritesNumbersAsTheSystemDoes) {
    EXPECT_EQ(CStr(7.0), "7");
    EXPECT_EQ(CStr(4.2), "4.2");
    EXPECT_EQ(CStr(28.2), "28.2");
    EXPECT_EQ(CStr(33.33), "33.33");
    EXPECT_EQ(CStr(-0.5), "-0.5");
    EXPECT_EQ(CStr(1.0 / 3.0), "0.333333333333333");
    EXPECT_EQ(CStr(1e15), "1E+15");
    EXPECT_EQ(CStr(1.0f / 6.0f), "0.1666667");
    EXPECT_EQ(CStr(static_cast<float>(4.2)), "4.2");
    EXPECT_EQ(CStr(0), "0");
    EXPECT_EQ(CStr(int64_t{-12}), "-12");
    EXPECT_EQ(Fecha_Texto(QDate(2026, 3, 5)), "05-03-2026");
}

TEST(Numeros, DecimalPointWhateverTheLocale) {
    // A machine set to a comma locale must not change how numbers are read or written.
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Chile));
    const char* anterior = std::setlocale(LC_NUMERIC, nullptr);
    const std::string guardado = anterior ? anterior : "C";
    std::setlocale(LC_NUMERIC, "es_CL.UTF-8");
    EXPECT_EQ(CStr(4.2), "4.2");
    EXPECT_DOUBLE_EQ(Val("4.2"), 4.2);
    EXPECT_EQ(CStr(1.0f / 6.0f), "0.1666667");
    std::setlocale(LC_NUMERIC, guardado.c_str());
    QLocale::setDefault(QLocale::c());
}
