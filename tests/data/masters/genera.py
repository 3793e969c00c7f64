#!/usr/bin/env python3
"""Writes the list files the master-data tests load, as a spreadsheet program saves them.

Each list is written as a flat OpenDocument sheet and converted by LibreOffice Calc, headless:
    python3 genera.py && soffice --headless --convert-to xlsx *.fods && rm *.fods
The .xls and .csv copies of the 45-student list come from the .xlsx the same way.
"""
from xml.sax.saxutils import escape

NS = ('xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0" '
      'xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0" '
      'xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0" '
      'xmlns:of="urn:oasis:names:tc:opendocument:xmlns:of:1.2"')


def dv(cuerpo):
    suma, factor = 0, 2
    for c in reversed(str(cuerpo)):
        suma += int(c) * factor
        factor = 2 if factor == 7 else factor + 1
    r = 11 - suma % 11
    return 'K' if r == 10 else '0' if r == 11 else str(r)


def rut(cuerpo):
    return f'{cuerpo}-{dv(cuerpo)}'


def celda(v):
    if v is None:
        return '<table:table-cell/>'
    if isinstance(v, (int, float)):
        return f'<table:table-cell office:value-type="float" office:value="{v}"><text:p>{v}</text:p></table:table-cell>'
    if v.startswith('='):
        return f'<table:table-cell table:formula="of:{escape(v)}" office:value-type="float" office:value="0"/>'
    return f'<table:table-cell office:value-type="string"><text:p>{escape(v)}</text:p></table:table-cell>'


def hoja(nombre, filas):
    cuerpo = ''.join('<table:table-row>' + ''.join(celda(v) for v in f) + '</table:table-row>' for f in filas)
    return f'<table:table table:name="{nombre}">{cuerpo}</table:table>'


def escribe(archivo, *hojas):
    with open(archivo, 'w', encoding='utf-8') as f:
        f.write(f'<?xml version="1.0" encoding="UTF-8"?><office:document {NS} office:version="1.2" '
                'office:mimetype="application/vnd.oasis.opendocument.spreadsheet"><office:body>'
                f'<office:spreadsheet>{"".join(hojas)}</office:spreadsheet></office:body></office:document>')


CURSOS = ['1° MEDIO A', '1° MEDIO B', '2° MEDIO A']

# 45 students over three courses; row 1 carries a comma behind the rut, row 2 an apostrophe,
# row 3 a rut typed as a number (no hyphen, ends in 0), row 4 a formula in column D.
alumnos = [[rut(10000000 + 7 * i), f'ALUMNO {i:02d}', CURSOS[i % 3], i] for i in range(1, 46)]
alumnos[0][0] = '12345678-5,'
alumnos[1][1] = "O'HIGGINS RIQUELME BERNARDO"
alumnos[2][0] = 1230
alumnos[3][3] = '=1+1'
alumnos[4][3] = 5.5
escribe('alumnos_45.fods', hoja('Alumnos', alumnos), hoja('Otra', [['99999999-9', 'NO LEER', 'X', 0]]))

# 600 students with a bad check character at row 500.
seiscientos = [[rut(20000000 + i), f'ALUMNO {i:03d}', CURSOS[i % 3], 0] for i in range(1, 601)]
seiscientos[499][0] = '20000500-' + ('1' if dv(20000500) != '1' else '2')
escribe('alumnos_600_rut_malo.fods', hoja('Alumnos', seiscientos))

# 150 teachers; a comma and an apostrophe in two names.
profesores = [[f'PROFESOR {i:03d}'] for i in range(1, 151)]
profesores[0][0] = 'PÉREZ, JUAN'
profesores[1][0] = "D'ANGELO MARÍA"
escribe('profesores_150.fods', hoja('Profesores', profesores))

escribe('asignaturas.fods', hoja('Asignaturas', [['MATEMÁTICA'], ["LENGUAJE Y COMUNICACIÓN"], ['HISTORIA']]))

escribe('ejes.fods', hoja('Ejes', [['NÚMEROS', 'MATEMÁTICA', 'GENERAL'], ['ÁLGEBRA', 'MATEMÁTICA', 'PSU'],
                                   ["LECTURA D'OBRAS", 'Cuarto Básico', 'SIMCE']]))

# 1005 skills: the load keeps the first 1000.
habilidades = [[f'HABILIDAD {i:04d}', f'Definición {i}'] for i in range(1, 1006)]
escribe('habilidades_1005.fods', hoja('Habilidades', habilidades))
