"""Draws the sample Obra as DXF and reads it back as a drafting program would: the file is sound,
nothing but plain entities stands in it, each in its layer, and what is measured has its true size.

usage: dxf.py ZORBIN-CALC OBRA.zrb FOLDER
"""

import json
import math
import os
import re
import subprocess
import sys

import ezdxf
from ezdxf import bbox

ENTIDADES = {"LINE", "POLYLINE", "CIRCLE", "TEXT", "SOLID"}
CAPAS = {"0", "TERRENO", "RELLENO", "CUNA", "AGUA", "HORMIGON", "REVESTIMIENTO", "CHAPA", "INTERIOR", "EXTERIOR",
         "ALAMBRE", "EJES", "TRAMAS", "DATOS", "COTAS", "TEXTOS"}
GRAFICOS = ("acero", "interior", "exterior", "momentos", "cargas", "tensiones")
ESCALA = {"es": "Escala 1:", "fr": "Échelle 1:"}
LETRA_MENOR = 2.5 * 0.72  # height of the capitals on paper [mm]
HOJA = (277, 190)

fallos = []


def espera(cierto, cual, que):
    if not cierto:
        fallos.append(f"{cual}: {que}")


def llama(calc, *palabras):
    return subprocess.run([calc, *palabras], check=True, capture_output=True, text=True).stdout


def circulos(doc, *capas):
    return [e for e in doc.modelspace().query("CIRCLE") if e.dxf.layer in capas]


def cerca(a, b, margen=1e-3):
    return math.isclose(a, b, abs_tol=margen)


def esta_sano(ruta, cual):
    crudo = open(ruta, "rb").read()
    espera(re.search(rb"\$ACADVER\r\n1\r\nAC1009\r\n", crudo), cual, "is not of release 12")
    espera(re.search(rb"\$DWGCODEPAGE\r\n3\r\nANSI_1252\r\n", crudo), cual, "tells no code page")
    doc = ezdxf.readfile(ruta)
    revision = doc.audit()
    for e in (*revision.errors, *revision.fixes):
        espera(False, cual, e.message)
    espera({c.dxf.name for c in doc.layers} - {"Defpoints"} == CAPAS, cual, "has other layers")
    for e in doc.modelspace():
        espera(e.dxftype() in ENTIDADES, cual, f"has a {e.dxftype()}")
        espera(e.dxf.layer in CAPAS - {"0"}, cual, f"has something in {e.dxf.layer}")
        espera(e.dxftype() != "TEXT" or "?" not in e.dxf.text, cual, f"has lost a letter: {e.dxf.text if e.dxftype() == 'TEXT' else ''}")
    lo, hi = doc.header["$EXTMIN"], doc.header["$EXTMAX"]
    dibujado = bbox.extents([e for e in doc.modelspace() if e.dxftype() != "TEXT"])
    espera(all(lo[i] - 1e-3 <= dibujado.extmin[i] and dibujado.extmax[i] <= hi[i] + 1e-3 for i in (0, 1)), cual,
           "goes beyond its limits")
    return doc


def mide(doc, cual, que, tramo, idioma):
    textos = doc.modelspace().query("TEXT")
    escala = next((float(t.dxf.text[len(ESCALA[idioma]):].replace(",", ".")) for t in textos
                   if t.dxf.text.startswith(ESCALA[idioma])), None)
    espera((escala is not None) == (que in ("seccion", "zanja", "hoja")), cual, f"scale: {escala}")
    if escala is None:
        alto = doc.header["$EXTMAX"]
        espera(alto[0] <= HOJA[0] and alto[1] <= HOJA[1], cual, "leaves its sheet")
        espera(min(t.dxf.height for t in textos) >= LETRA_MENOR - 1e-6, cual, "has small letters")
        return
    muro = circulos(doc, "HORMIGON")
    espera(muro and cerca(2 * max(c.dxf.radius for c in muro), tramo["De"] * 1000), cual, "De")
    espera(muro and cerca(2 * min(c.dxf.radius for c in muro), tramo["Di"] * 1000), cual, "Di")
    espera(any(cerca(t.dxf.height, LETRA_MENOR * escala, 1e-2) for t in textos), cual, "letters not for its scale")
    if que == "seccion":
        mide_pared(doc, cual, tramo)
    if que == "hoja":
        mide_desarrollos(doc, cual)


def mide_desarrollos(doc, cual):
    """The unrolled cages: spirals lie a pitch apart, and climb it in a turn."""
    pasos = [float(m[1].replace(",", ".")) for m in
             (re.fullmatch(r"paso? ([\d,]+)", t.dxf.text) for t in doc.modelspace().query("TEXT")) if m]
    espera(pasos, cual, "tells no pitch")
    medidos = []
    for capa in ("INTERIOR", "EXTERIOR", "ALAMBRE"):
        lineas = [e for e in doc.modelspace().query(f'LINE[layer=="{capa}"]')]
        sube = [e.dxf.start.y - e.dxf.end.y for e in lineas if e.dxf.start.x != e.dxf.end.x]
        if sube:
            altos = sorted(e.dxf.start.y for e in lineas if cerca(e.dxf.start.y - e.dxf.end.y, max(sube)))
            medidos.append(max(sube))
            espera(all(cerca(b - a, max(sube)) for a, b in zip(altos, altos[1:])), cual, f"pitch of {capa}")
    espera(sorted(round(m, 1) for m in medidos) == sorted(pasos), cual, f"pitches {medidos}, told {pasos}")


def mide_pared(doc, cual, tramo):
    """The cut along the wall: its thickness, and each bar at its cover."""
    espesor = tramo["Esp"] * 10
    cortes = [e for e in doc.modelspace().query("POLYLINE") if e.dxf.layer == "HORMIGON"]
    cajas = [bbox.extents([c]) for c in cortes]
    caja = next((c for c in cajas if cerca(c.size.y, espesor)), None)
    espera(caja is not None, cual, "no wall of its thickness")
    if caja is None:
        return
    barras = [c for c in circulos(doc, "EXTERIOR") if c.dxf.radius < 20]
    espera(bool(barras) == (tramo["Tipologia"] < 2000), cual, "outer bars")
    espera(all(cerca(caja.extmax.y - c.dxf.center.y, tramo["Rece"] * 10) for c in barras), cual, "outer cover")
    dentro = [e for c in ("CHAPA", "ALAMBRE", "INTERIOR") for e in doc.modelspace().query(f'*[layer=="{c}"]')]
    espera(bool(dentro), cual, "no steel")


def main():
    calc, obra, carpeta = sys.argv[1:4]
    os.makedirs(carpeta, exist_ok=True)
    tramos = {t["NumeroTramo"]: t for t in json.loads(llama(calc, "calcula", obra, "--formato", "json"))["tramos"]}
    dibujos = [(n, que, None) for n in tramos for que in ("seccion", "zanja", "hoja")]
    for n in (1, 6):
        dibujos += [(n, "anillo", None), (n, "mapa", None)]
        dibujos += [(n, "grafico", g) for g in GRAFICOS if n == 6 or g != "tensiones"]
    for numero, que, grafico in dibujos:
        for idioma in ("es", "fr"):
            cual = f"tramo {numero}, {que} {grafico or ''} {idioma}"
            ruta = os.path.join(carpeta, f"{numero}-{que}-{grafico or ''}-{idioma}.dxf")
            palabras = ["--grafico", grafico] if grafico else []
            llama(calc, "dibuja", obra, "--tramo", str(numero), "--que", que, "--idioma", idioma, "--separador", "coma",
                  *palabras, "--dxf", ruta)
            mide(esta_sano(ruta, cual), cual, que, tramos[numero], idioma)
    print(f"{2 * len(dibujos)} drawings")
    for f in fallos:
        print(f, file=sys.stderr)
    return 1 if fallos else 0


sys.exit(main())
