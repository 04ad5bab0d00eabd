#include "spread/editor/function_words/function_words.h"

namespace editor {

namespace {

constexpr FunctionWords rows[] = {
    {"SUM",
     {"De som van alle getallen; teksten, waarheidswaarden en lege cellen in gebieden tellen niet "
      "mee.",
      "Die Summe aller Zahlen; Texte, Wahrheitswerte und leere Zellen in Bereichen zählen nicht "
      "mit.",
      "La somme de tous les nombres ; les textes, valeurs logiques et cellules vides des plages ne "
      "comptent pas."}},
    {"SUMSQ",
     {"De som van de kwadraten van alle getallen.", "Die Summe der Quadrate aller Zahlen.",
      "La somme des carrés de tous les nombres."}},
    {"PRODUCT",
     {"Alle getallen vermenigvuldigd; 0 als er geen is.",
      "Alle Zahlen multipliziert; 0, wenn es keine gibt.",
      "Le produit de tous les nombres ; 0 s'il n'y en a aucun."}},
    {"SUMX2MY2",
     {"De som van x^2 - y^2 over alle paren.", "Die Summe von x^2 - y^2 über alle Paare.",
      "La somme de x^2 - y^2 sur toutes les paires."}},
    {"SUMX2PY2",
     {"De som van x^2 + y^2 over alle paren.", "Die Summe von x^2 + y^2 über alle Paare.",
      "La somme de x^2 + y^2 sur toutes les paires."}},
    {"SUMXMY2",
     {"De som van (x - y)^2 over alle paren.", "Die Summe von (x - y)^2 über alle Paare.",
      "La somme de (x - y)^2 sur toutes les paires."}},
    {"SERIESSUM",
     {"De machtreeks van x met deze coëfficiënten; de exponent loopt op met de stap.",
      "Die Potenzreihe von x mit diesen Koeffizienten; der Exponent wächst um die Schrittweite.",
      "La série entière de x avec ces coefficients ; l'exposant augmente du pas."}},
    {"ABS", {"Het getal zonder teken.", "Die Zahl ohne Vorzeichen.", "Le nombre sans son signe."}},
    {"SIGN",
     {"1 voor een positief getal, -1 voor een negatief, 0 voor nul.",
      "1 für eine positive Zahl, -1 für eine negative, 0 für null.",
      "1 pour un nombre positif, -1 pour un négatif, 0 pour zéro."}},
    {"SQRT",
     {"De vierkantswortel; #NUM! voor een negatief getal.",
      "Die Quadratwurzel; #NUM! für eine negative Zahl.",
      "La racine carrée ; #NUM! pour un nombre négatif."}},
    {"SQRTPI",
     {"De vierkantswortel van het getal maal pi.", "Die Quadratwurzel der Zahl mal Pi.",
      "La racine carrée du nombre multiplié par pi."}},
    {"POWER",
     {"Het getal tot een macht verheven, als getal^exponent.",
      "Die Zahl zu einer Potenz erhoben, wie Zahl^Exponent.",
      "Le nombre élevé à une puissance, comme nombre^exposant."}},
    {"EXP",
     {"e verheven tot de macht van het getal.", "e hoch die Zahl.",
      "e élevé à la puissance du nombre."}},
    {"LN",
     {"De natuurlijke logaritme van een positief getal.",
      "Der natürliche Logarithmus einer positiven Zahl.",
      "Le logarithme naturel d'un nombre positif."}},
    {"LOG",
     {"De logaritme van een positief getal met een grondtal, 10 als er geen gegeven is.",
      "Der Logarithmus einer positiven Zahl zu einer Basis, 10 ohne Angabe.",
      "Le logarithme d'un nombre positif dans une base, 10 si aucune n'est donnée."}},
    {"LOG10",
     {"De logaritme van een positief getal met grondtal 10.",
      "Der Logarithmus einer positiven Zahl zur Basis 10.",
      "Le logarithme en base 10 d'un nombre positif."}},
    {"PI",
     {"Het getal pi, 3.14159265358979.", "Die Zahl Pi, 3.14159265358979.",
      "Le nombre pi, 3.14159265358979."}},
    {"RAND",
     {"Een toevalsgetal vanaf 0 en kleiner dan 1, nieuw bij elke berekening.",
      "Eine Zufallszahl ab 0 und kleiner als 1, bei jeder Berechnung neu.",
      "Un nombre aléatoire à partir de 0 et inférieur à 1, nouveau à chaque calcul."}},
    {"RANDBETWEEN",
     {"Een geheel toevalsgetal van de ondergrens tot en met de bovengrens, nieuw bij elke "
      "berekening.",
      "Eine ganze Zufallszahl von der unteren bis zur oberen Grenze, beide eingeschlossen, bei "
      "jeder Berechnung neu.",
      "Un nombre entier aléatoire entre les deux bornes, comprises, nouveau à chaque calcul."}},
    {"ROUND",
     {"Het getal afgerond op zoveel decimalen, helften van nul af; decimalen onder 0 ronden af op "
      "tientallen, honderdtallen enzovoort.",
      "Die Zahl auf so viele Dezimalstellen gerundet, Hälften von null weg; Stellen unter 0 runden "
      "auf Zehner, Hunderter und so weiter.",
      "Le nombre arrondi à ce nombre de décimales, les moitiés en s'éloignant de zéro ; des "
      "décimales négatives arrondissent aux dizaines, centaines, etc."}},
    {"ROUNDUP",
     {"Het getal van nul af afgerond op zoveel decimalen.",
      "Die Zahl von null weg auf so viele Dezimalstellen gerundet.",
      "Le nombre arrondi à ce nombre de décimales en s'éloignant de zéro."}},
    {"ROUNDDOWN",
     {"Het getal naar nul toe afgerond op zoveel decimalen.",
      "Die Zahl zu null hin auf so viele Dezimalstellen gerundet.",
      "Le nombre arrondi à ce nombre de décimales vers zéro."}},
    {"TRUNC",
     {"Het getal afgekapt na zoveel decimalen, zonder decimalen als er niets gegeven is.",
      "Die Zahl nach so vielen Dezimalstellen abgeschnitten, ohne Angabe nach keiner.",
      "Le nombre tronqué après ce nombre de décimales, aucune par défaut."}},
    {"INT",
     {"Het grootste gehele getal dat niet groter is dan het getal.",
      "Die größte ganze Zahl, die nicht über der Zahl liegt.",
      "Le plus grand entier qui ne dépasse pas le nombre."}},
    {"MROUND",
     {"Het getal afgerond op het dichtstbijzijnde veelvoud; beide moeten hetzelfde teken hebben.",
      "Die Zahl auf das nächste Vielfache gerundet; beide müssen dasselbe Vorzeichen haben.",
      "Le nombre arrondi au multiple le plus proche ; les deux doivent avoir le même signe."}},
    {"CEILING",
     {"Het getal naar boven afgerond op een veelvoud van de stap; met een negatieve stap wordt een "
      "negatief getal van nul af afgerond.",
      "Die Zahl auf ein Vielfaches der Schrittweite aufgerundet; bei negativer Schrittweite wird "
      "eine negative Zahl von null weg gerundet.",
      "Le nombre arrondi par excès à un multiple du pas ; avec un pas négatif, un nombre négatif "
      "est arrondi en s'éloignant de zéro."}},
    {"FLOOR",
     {"Het getal naar beneden afgerond op een veelvoud van de stap; met een negatieve stap wordt "
      "een negatief getal naar nul toe afgerond.",
      "Die Zahl auf ein Vielfaches der Schrittweite abgerundet; bei negativer Schrittweite wird "
      "eine negative Zahl zu null hin gerundet.",
      "Le nombre arrondi par défaut à un multiple du pas ; avec un pas négatif, un nombre négatif "
      "est arrondi vers zéro."}},
    {"CEILING.MATH",
     {"Het getal naar boven afgerond op een veelvoud van de stap; een andere modus dan 0 rondt "
      "negatieve getallen van nul af af.",
      "Die Zahl auf ein Vielfaches der Schrittweite aufgerundet; ein Modus ungleich 0 rundet "
      "negative Zahlen von null weg.",
      "Le nombre arrondi par excès à un multiple du pas ; un mode autre que 0 éloigne de zéro les "
      "nombres négatifs."}},
    {"FLOOR.MATH",
     {"Het getal naar beneden afgerond op een veelvoud van de stap; een andere modus dan 0 rondt "
      "negatieve getallen naar nul toe af.",
      "Die Zahl auf ein Vielfaches der Schrittweite abgerundet; ein Modus ungleich 0 rundet "
      "negative Zahlen zu null hin.",
      "Le nombre arrondi par défaut à un multiple du pas ; un mode autre que 0 arrondit vers zéro "
      "les nombres négatifs."}},
    {"CEILING.PRECISE,ISO.CEILING",
     {"Het getal naar boven afgerond op een veelvoud van de stap, waarvan het teken er niet toe "
      "doet.",
      "Die Zahl auf ein Vielfaches der Schrittweite aufgerundet, deren Vorzeichen keine Rolle "
      "spielt.",
      "Le nombre arrondi par excès à un multiple du pas, dont le signe ne compte pas."}},
    {"FLOOR.PRECISE",
     {"Het getal naar beneden afgerond op een veelvoud van de stap, waarvan het teken er niet toe "
      "doet.",
      "Die Zahl auf ein Vielfaches der Schrittweite abgerundet, deren Vorzeichen keine Rolle "
      "spielt.",
      "Le nombre arrondi par défaut à un multiple du pas, dont le signe ne compte pas."}},
    {"EVEN",
     {"Het getal van nul af afgerond op een even geheel getal.",
      "Die Zahl von null weg auf eine gerade ganze Zahl gerundet.",
      "Le nombre arrondi à un entier pair en s'éloignant de zéro."}},
    {"ODD",
     {"Het getal van nul af afgerond op een oneven geheel getal.",
      "Die Zahl von null weg auf eine ungerade ganze Zahl gerundet.",
      "Le nombre arrondi à un entier impair en s'éloignant de zéro."}},
    {"MOD",
     {"De rest van het getal na deling; heeft het teken van de deler.",
      "Der Rest der Zahl nach der Division; er hat das Vorzeichen des Divisors.",
      "Le reste du nombre après division ; il a le signe du diviseur."}},
    {"QUOTIENT",
     {"Het gehele deel van een deling.", "Der ganze Teil einer Division.",
      "La partie entière d'une division."}},
    {"FACT",
     {"De faculteit 1 * 2 * … * getal, tot 170.", "Die Fakultät 1 * 2 * … * Zahl, bis 170.",
      "La factorielle 1 * 2 * … * nombre, jusqu'à 170."}},
    {"FACTDOUBLE",
     {"De dubbele faculteit getal * (getal - 2) * (getal - 4) * ….",
      "Die Doppelfakultät Zahl * (Zahl - 2) * (Zahl - 4) * ….",
      "La double factorielle nombre * (nombre - 2) * (nombre - 4) * …."}},
    {"COMBIN",
     {"Op hoeveel manieren uit een aantal dingen er enkele gekozen kunnen worden.",
      "Auf wie viele Arten sich aus einer Anzahl Dinge einige auswählen lassen.",
      "De combien de façons on peut choisir certains éléments parmi un nombre d'éléments."}},
    {"COMBINA",
     {"Op hoeveel manieren uit een aantal dingen er enkele gekozen kunnen worden als elk opnieuw "
      "gekozen mag worden.",
      "Auf wie viele Arten sich aus einer Anzahl Dinge einige auswählen lassen, wenn jedes wieder "
      "gewählt werden darf.",
      "De combien de façons on peut choisir certains éléments parmi un nombre d'éléments, chacun "
      "pouvant être repris."}},
    {"PERMUT",
     {"In hoeveel volgordes uit een aantal dingen er enkele gekozen kunnen worden.",
      "In wie vielen Reihenfolgen sich aus einer Anzahl Dinge einige auswählen lassen.",
      "Dans combien d'ordres on peut choisir certains éléments parmi un nombre d'éléments."}},
    {"PERMUTATIONA",
     {"In hoeveel volgordes uit een aantal dingen er enkele gekozen kunnen worden als elk opnieuw "
      "gekozen mag worden.",
      "In wie vielen Reihenfolgen sich aus einer Anzahl Dinge einige auswählen lassen, wenn jedes "
      "wieder gewählt werden darf.",
      "Dans combien d'ordres on peut choisir certains éléments parmi un nombre d'éléments, chacun "
      "pouvant être repris."}},
    {"GCD",
     {"De grootste gemene deler van gehele getallen.",
      "Der größte gemeinsame Teiler ganzer Zahlen.",
      "Le plus grand commun diviseur de nombres entiers."}},
    {"LCM",
     {"Het kleinste gemene veelvoud van gehele getallen.",
      "Das kleinste gemeinsame Vielfache ganzer Zahlen.",
      "Le plus petit commun multiple de nombres entiers."}},
    {"MULTINOMIAL",
     {"De faculteit van de som gedeeld door het product van de faculteiten.",
      "Die Fakultät der Summe geteilt durch das Produkt der Fakultäten.",
      "La factorielle de la somme divisée par le produit des factorielles."}},
    {"ROMAN",
     {"Het getal, 0 tot 3999, in Romeinse cijfers; vorm 0 is de klassieke, 1 tot 4 zijn steeds "
      "korter.",
      "Die Zahl, 0 bis 3999, in römischen Ziffern; Form 0 ist die klassische, 1 bis 4 sind immer "
      "kürzer.",
      "Le nombre, de 0 à 3999, en chiffres romains ; la forme 0 est la classique, 1 à 4 sont de "
      "plus en plus courtes."}},
    {"ARABIC",
     {"Het getal dat een tekst in Romeinse cijfers betekent.",
      "Die Zahl, die ein Text in römischen Ziffern bedeutet.",
      "Le nombre que désigne un texte en chiffres romains."}},
    {"BASE",
     {"Het gehele getal als tekst in een grondtal van 2 tot 36, met nullen ervoor tot de lengte.",
      "Die ganze Zahl als Text zu einer Basis von 2 bis 36, mit führenden Nullen bis zur Länge.",
      "Le nombre entier en texte dans une base de 2 à 36, précédé de zéros jusqu'à la longueur."}},
    {"DECIMAL",
     {"Het getal dat een tekst in een grondtal van 2 tot 36 betekent.",
      "Die Zahl, die ein Text zu einer Basis von 2 bis 36 bedeutet.",
      "Le nombre que désigne un texte dans une base de 2 à 36."}},
    {"SUBTOTAL",
     {"AVERAGE (1), COUNT (2), COUNTA (3), MAX (4), MIN (5), PRODUCT (6), STDEV (7), STDEVP (8), "
      "SUM (9), VAR (10) of VARP (11) over cellen die zelf geen SUBTOTAL bevatten.",
      "AVERAGE (1), COUNT (2), COUNTA (3), MAX (4), MIN (5), PRODUCT (6), STDEV (7), STDEVP (8), "
      "SUM (9), VAR (10) oder VARP (11) über Zellen, die selbst kein SUBTOTAL enthalten.",
      "AVERAGE (1), COUNT (2), COUNTA (3), MAX (4), MIN (5), PRODUCT (6), STDEV (7), STDEVP (8), "
      "SUM (9), VAR (10) ou VARP (11) sur les cellules qui ne contiennent pas de SUBTOTAL."}},
    {"AGGREGATE",
     {"Als SUBTOTAL, ook MEDIAN (12), MODE (13), LARGE (14), SMALL (15), PERCENTILE (16), QUARTILE "
      "(17) en hun exclusieve vormen (18, 19); opties 2, 3, 6 en 7 laten fouten weg.",
      "Wie SUBTOTAL, auch MEDIAN (12), MODE (13), LARGE (14), SMALL (15), PERCENTILE (16), "
      "QUARTILE (17) und ihre exklusiven Formen (18, 19); die Optionen 2, 3, 6 und 7 lassen Fehler "
      "weg.",
      "Comme SUBTOTAL, aussi MEDIAN (12), MODE (13), LARGE (14), SMALL (15), PERCENTILE (16), "
      "QUARTILE (17) et leurs formes exclusives (18, 19) ; les options 2, 3, 6 et 7 écartent les "
      "erreurs."}},
};

}  // namespace

std::span<const FunctionWords> mathWords() {
    return rows;
}

}  // namespace editor
