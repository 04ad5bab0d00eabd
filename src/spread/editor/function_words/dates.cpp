#include "spread/editor/function_words/function_words.h"

namespace editor {

namespace {

constexpr FunctionWords rows[] = {
    {"DATE",
     {"Het dagnummer van een datum; maanden en dagen buiten hun bereik lopen door in de volgende.",
      "Die Tagesnummer eines Datums; Monate und Tage über ihr Ende hinaus laufen in die nächsten "
      "weiter.",
      "Le numéro de jour d'une date ; les mois et jours hors limites débordent sur les suivants."}},
    {"DATEDIF",
     {"Hele jaren (\"y\"), maanden (\"m\") of dagen (\"d\") tussen twee datums; \"ym\", \"md\" en "
      "\"yd\" geven wat ervan overblijft.",
      "Ganze Jahre (\"y\"), Monate (\"m\") oder Tage (\"d\") zwischen zwei Daten; \"ym\", \"md\" "
      "und \"yd\" geben den Rest davon.",
      "Années (\"y\"), mois (\"m\") ou jours (\"d\") entiers entre deux dates ; \"ym\", \"md\" et "
      "\"yd\" donnent ce qui en reste."}},
    {"DATEVALUE",
     {"Het dagnummer van een datum die als tekst gegeven is.",
      "Die Tagesnummer eines Datums, das als Text gegeben ist.",
      "Le numéro de jour d'une date donnée en texte."}},
    {"DAY",
     {"De dag van de maand, 1 tot 31.", "Der Tag des Monats, 1 bis 31.",
      "Le jour du mois, de 1 à 31."}},
    {"DAYS",
     {"De dagen tussen twee datums.", "Die Tage zwischen zwei Daten.",
      "Les jours entre deux dates."}},
    {"DAYS360",
     {"De dagen tussen twee datums in een jaar van twaalf maanden van 30 dagen.",
      "Die Tage zwischen zwei Daten in einem Jahr aus zwölf Monaten zu 30 Tagen.",
      "Les jours entre deux dates dans une année de douze mois de 30 jours."}},
    {"EDATE",
     {"De datum zoveel maanden later, of aan het einde van die maand als die korter is.",
      "Das Datum so viele Monate später, oder am Ende dieses Monats, wenn er kürzer ist.",
      "La date tant de mois plus tard, ou à la fin de ce mois s'il est plus court."}},
    {"EOMONTH",
     {"De laatste dag van de maand zoveel maanden later.",
      "Der letzte Tag des Monats so viele Monate später.",
      "Le dernier jour du mois tant de mois plus tard."}},
    {"HOUR",
     {"Het uur van een tijd, 0 tot 23.", "Die Stunde einer Uhrzeit, 0 bis 23.",
      "L'heure d'un instant, de 0 à 23."}},
    {"ISOWEEKNUM",
     {"De week van het jaar volgens ISO 8601, 1 tot 53.",
      "Die Kalenderwoche nach ISO 8601, 1 bis 53.",
      "La semaine de l'année selon ISO 8601, de 1 à 53."}},
    {"MINUTE",
     {"De minuut van een tijd, 0 tot 59.", "Die Minute einer Uhrzeit, 0 bis 59.",
      "La minute d'un instant, de 0 à 59."}},
    {"MONTH",
     {"De maand van een datum, 1 tot 12.", "Der Monat eines Datums, 1 bis 12.",
      "Le mois d'une date, de 1 à 12."}},
    {"NETWORKDAYS",
     {"De werkdagen van maandag tot vrijdag tussen twee datums, beide inbegrepen.",
      "Die Arbeitstage von Montag bis Freitag zwischen zwei Daten, beide eingeschlossen.",
      "Les jours ouvrés du lundi au vendredi entre deux dates, comprises."}},
    {"NETWORKDAYS.INTL",
     {"Als NETWORKDAYS met andere weekeinden: een getal, of zeven cijfers vanaf maandag met 1 voor "
      "een vrije dag.",
      "Wie NETWORKDAYS mit anderen Wochenenden: eine Zahl, oder sieben Ziffern ab Montag mit 1 für "
      "einen freien Tag.",
      "Comme NETWORKDAYS avec d'autres week-ends : un nombre, ou sept chiffres à partir du lundi "
      "avec 1 pour un jour chômé."}},
    {"NOW",
     {"Het dagnummer en de tijd van nu.", "Tagesnummer und Uhrzeit von jetzt.",
      "Le numéro de jour et l'heure actuels."}},
    {"SECOND",
     {"De seconde van een tijd, 0 tot 59.", "Die Sekunde einer Uhrzeit, 0 bis 59.",
      "La seconde d'un instant, de 0 à 59."}},
    {"TIME",
     {"Een tijd als deel van een dag.", "Eine Uhrzeit als Bruchteil eines Tages.",
      "Une heure comme fraction de jour."}},
    {"TIMEVALUE",
     {"Een tijd die als tekst gegeven is, als deel van een dag.",
      "Eine als Text gegebene Uhrzeit als Bruchteil eines Tages.",
      "Une heure donnée en texte, comme fraction de jour."}},
    {"TODAY",
     {"Het dagnummer van vandaag.", "Die Tagesnummer von heute.",
      "Le numéro de jour d'aujourd'hui."}},
    {"WEEKDAY",
     {"De dag van de week: 1 voor zondag, of met telling 2 voor maandag; 3 telt vanaf 0 voor "
      "maandag; 11 tot 17 beginnen op maandag tot zondag.",
      "Der Wochentag: 1 für Sonntag, oder mit Zählung 2 für Montag; 3 zählt ab 0 für Montag; 11 "
      "bis 17 beginnen mit Montag bis Sonntag.",
      "Le jour de la semaine : 1 pour dimanche, ou avec la numérotation 2 pour lundi ; 3 compte à "
      "partir de 0 pour lundi ; 11 à 17 commencent au lundi jusqu'au dimanche."}},
    {"WEEKNUM",
     {"De week van het jaar, die begint op zondag (1), maandag (2), maandag tot zondag (11 tot "
      "17), of volgens ISO 8601 (21).",
      "Die Woche des Jahres, die am Sonntag (1), Montag (2), Montag bis Sonntag (11 bis 17) "
      "beginnt, oder nach ISO 8601 (21).",
      "La semaine de l'année commençant le dimanche (1), le lundi (2), du lundi au dimanche (11 à "
      "17), ou selon ISO 8601 (21)."}},
    {"WORKDAY",
     {"De datum zoveel werkdagen later.", "Das Datum so viele Arbeitstage später.",
      "La date tant de jours ouvrés plus tard."}},
    {"WORKDAY.INTL",
     {"Als WORKDAY met andere weekeinden, zie NETWORKDAYS.INTL.",
      "Wie WORKDAY mit anderen Wochenenden, siehe NETWORKDAYS.INTL.",
      "Comme WORKDAY avec d'autres week-ends, voir NETWORKDAYS.INTL."}},
    {"YEAR", {"Het jaar van een datum.", "Das Jahr eines Datums.", "L'année d'une date."}},
    {"YEARFRAC",
     {"Het deel van een jaar tussen twee datums: basis 0 Amerikaans 30/360, 1 werkelijke dagen, 2 "
      "werkelijk/360, 3 werkelijk/365, 4 Europees 30/360.",
      "Der Teil eines Jahres zwischen zwei Daten: Basis 0 amerikanisch 30/360, 1 tatsächliche "
      "Tage, 2 tatsächlich/360, 3 tatsächlich/365, 4 europäisch 30/360.",
      "La fraction d'année entre deux dates : base 0 américaine 30/360, 1 jours réels, 2 "
      "réels/360, 3 réels/365, 4 européenne 30/360."}},
};

}  // namespace

std::span<const FunctionWords> dateWords() {
    return rows;
}

}  // namespace editor
