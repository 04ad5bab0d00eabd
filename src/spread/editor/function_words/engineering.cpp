#include "spread/editor/function_words/function_words.h"

namespace editor {

namespace {

constexpr FunctionWords rows[] = {
    {"CONVERT",
     {"Een maat in een andere eenheid, als CONVERT(1, \"in\", \"mm\"); eenheden van massa, lengte, "
      "tijd, druk, kracht, energie, vermogen, temperatuur, volume, oppervlakte, snelheid en "
      "andere.",
      "Ein Maß in einer anderen Einheit, wie CONVERT(1, \"in\", \"mm\"); Einheiten von Masse, "
      "Länge, Zeit, Druck, Kraft, Energie, Leistung, Temperatur, Volumen, Fläche, Geschwindigkeit "
      "und anderen.",
      "Une mesure dans une autre unité, comme CONVERT(1, \"in\", \"mm\") ; unités de masse, "
      "longueur, temps, pression, force, énergie, puissance, température, volume, surface, vitesse "
      "et autres."}},
    {"BIN2DEC",
     {"Het getal dat binaire cijfers betekenen.", "Die Zahl, die binäre Ziffern bedeuten.",
      "Le nombre que désignent des chiffres binaires."}},
    {"BIN2OCT",
     {"Binaire cijfers als octale.", "Binäre Ziffern als oktale.",
      "Des chiffres binaires en octal."}},
    {"BIN2HEX",
     {"Binaire cijfers als hexadecimale.", "Binäre Ziffern als hexadezimale.",
      "Des chiffres binaires en hexadécimal."}},
    {"OCT2DEC",
     {"Het getal dat octale cijfers betekenen.", "Die Zahl, die oktale Ziffern bedeuten.",
      "Le nombre que désignent des chiffres octaux."}},
    {"OCT2BIN",
     {"Octale cijfers als binaire.", "Oktale Ziffern als binäre.",
      "Des chiffres octaux en binaire."}},
    {"OCT2HEX",
     {"Octale cijfers als hexadecimale.", "Oktale Ziffern als hexadezimale.",
      "Des chiffres octaux en hexadécimal."}},
    {"HEX2DEC",
     {"Het getal dat hexadecimale cijfers betekenen.",
      "Die Zahl, die hexadezimale Ziffern bedeuten.",
      "Le nombre que désignent des chiffres hexadécimaux."}},
    {"HEX2BIN",
     {"Hexadecimale cijfers als binaire.", "Hexadezimale Ziffern als binäre.",
      "Des chiffres hexadécimaux en binaire."}},
    {"HEX2OCT",
     {"Hexadecimale cijfers als octale.", "Hexadezimale Ziffern als oktale.",
      "Des chiffres hexadécimaux en octal."}},
    {"DEC2BIN",
     {"Een geheel getal van -512 tot 511 in binaire cijfers.",
      "Eine ganze Zahl von -512 bis 511 in binären Ziffern.",
      "Un nombre entier de -512 à 511 en chiffres binaires."}},
    {"DEC2OCT",
     {"Een geheel getal in octale cijfers.", "Eine ganze Zahl in oktalen Ziffern.",
      "Un nombre entier en chiffres octaux."}},
    {"DEC2HEX",
     {"Een geheel getal in hexadecimale cijfers.", "Eine ganze Zahl in hexadezimalen Ziffern.",
      "Un nombre entier en chiffres hexadécimaux."}},
    {"BITAND",
     {"De bits die beide gehele getallen hebben.", "Die Bits, die beide ganze Zahlen haben.",
      "Les bits que les deux nombres entiers ont."}},
    {"BITOR",
     {"De bits die één van twee gehele getallen of beide hebben.",
      "Die Bits, die eine von zwei ganzen Zahlen oder beide haben.",
      "Les bits qu'un des deux nombres entiers ou les deux ont."}},
    {"BITXOR",
     {"De bits die slechts één van twee gehele getallen heeft.",
      "Die Bits, die nur eine von zwei ganzen Zahlen hat.",
      "Les bits qu'un seul des deux nombres entiers a."}},
    {"BITLSHIFT",
     {"De bits van een geheel getal naar links verschoven; plaatsen onder 0 verschuiven ze naar "
      "rechts.",
      "Die Bits einer ganzen Zahl nach links verschoben; Stellen unter 0 verschieben sie nach "
      "rechts.",
      "Les bits d'un nombre entier décalés à gauche ; un décalage négatif va à droite."}},
    {"BITRSHIFT",
     {"De bits van een geheel getal naar rechts verschoven; plaatsen onder 0 verschuiven ze naar "
      "links.",
      "Die Bits einer ganzen Zahl nach rechts verschoben; Stellen unter 0 verschieben sie nach "
      "links.",
      "Les bits d'un nombre entier décalés à droite ; un décalage négatif va à gauche."}},
    {"DELTA",
     {"1 als twee getallen gelijk zijn, anders 0.", "1, wenn zwei Zahlen gleich sind, sonst 0.",
      "1 si deux nombres sont égaux, sinon 0."}},
    {"GESTEP",
     {"1 als het getal de drempel bereikt, anders 0.",
      "1, wenn die Zahl die Schwelle erreicht, sonst 0.",
      "1 si le nombre atteint le seuil, sinon 0."}},
    {"ERF",
     {"De foutfunctie van 0 tot het getal, of tussen twee getallen.",
      "Die Fehlerfunktion von 0 bis zur Zahl, oder zwischen zwei Zahlen.",
      "La fonction d'erreur de 0 au nombre, ou entre deux nombres."}},
    {"ERF.PRECISE",
     {"De foutfunctie van 0 tot het getal.", "Die Fehlerfunktion von 0 bis zur Zahl.",
      "La fonction d'erreur de 0 au nombre."}},
    {"ERFC,ERFC.PRECISE",
     {"De foutfunctie van het getal tot oneindig.",
      "Die Fehlerfunktion von der Zahl bis unendlich.",
      "La fonction d'erreur du nombre à l'infini."}},
};

}  // namespace

std::span<const FunctionWords> engineeringWords() {
    return rows;
}

}  // namespace editor
