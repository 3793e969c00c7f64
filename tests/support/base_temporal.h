// A store of its own for each test: a temporary data folder, fresh shared values, scripted
// boxes, and the real start-up.
#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/dialogos_guion.h"

class BaseTemporal : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    // Runs the start-up on the data folder; the test scripts its boxes before.
    bool Arranca();
    QString Ruta(const QString& nombre) const;
    // Runs one statement on the open store.
    void Ejecuta(const QString& sql, const QVariantList& parametros = {});
    // One value of the first row of a query on the open store.
    QVariant Valor(const QString& sql, const QVariantList& parametros = {});

    QTemporaryDir carpeta;
    DialogosGuion* guion = nullptr;
};

// The same, with the start-up already run: the store of a test that needs no boxes to open.
class BaseArrancada : public BaseTemporal {
  protected:
    void SetUp() override {
        BaseTemporal::SetUp();
        ASSERT_TRUE(Arranca());
    }
};
