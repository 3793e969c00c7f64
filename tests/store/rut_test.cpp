// The rut check, with the consequences the system relies on.
#include <gtest/gtest.h>

#include "store/rut.h"

TEST(Rut, CheckCharacterOfTheBody) {
    const struct {
        const char* rut;
        bool valido;
    } casos[] = {
        {"5126663-3", true},    {"12345678-5", true},    {"12345678-4", false},
        {"1000005-K", true},    {"1000005-k", true},     {"1000013-0", true},
        {"0-0", true},          {"1230", true},          {"1234", false},
        {"-0", true},           {"", false},             {"5.126.663-3", false},
        {" 12345678-5", true},  {"12345678-5 ", false},  {"12345678-95", true},
        {"1234567A-0", false},  {"11111111-1", true},    {"22222222-2", true},
    };
    for (const auto& c : casos) EXPECT_EQ(Fnc_Valida_Rut(QString::fromUtf8(c.rut)), c.valido) << c.rut;
}

TEST(Rut, KeyFilterLetsOnlyRutKeysThrough) {
    bool pita = false;
    for (int tecla : std::initializer_list<int>{'-', 'k', 'K', '0', '9', 8}) {
        EXPECT_EQ(Filtra_Tecla_Rut(tecla, &pita), tecla);
        EXPECT_FALSE(pita);
    }
    for (int tecla : std::initializer_list<int>{'.', 'a', ' ', 'J', 13}) {
        EXPECT_EQ(Filtra_Tecla_Rut(tecla, &pita), 13);
        EXPECT_TRUE(pita);
    }
}

TEST(Rut, CheckCharacterOfABody) {
    EXPECT_EQ(Rut_Con_Digito(12345678), "12345678-5");
    EXPECT_EQ(Rut_Con_Digito(1000005), "1000005-K");
    EXPECT_EQ(Rut_Con_Digito(1000013), "1000013-0");
}
