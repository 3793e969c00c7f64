// A store of its own for each test: a temporary data folder, fresh shared values, scripted
// boxes, and the real start-up.
#pragma once

#include <QTemporaryDir>
#include <gtest/gtest.h>

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
