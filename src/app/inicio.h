// What runs between starting the program and showing the test list: a safe number format,
// the engine checks, the store opened or created, the migrations, the shared settings.
#pragma once

#include <QString>

// The folder of the store and of scaner.ini: $ZORTA_DATOS, else the executable's folder when
// writable, else the user's data folder.
QString Carpeta_Datos();

// The path of the store in the data folder.
QString Ruta_Base();

// Start-up up to the test list. False when the program must end (the store engine is missing
// or the store can't be opened; the box has been shown).
bool MDIForm_Load();
