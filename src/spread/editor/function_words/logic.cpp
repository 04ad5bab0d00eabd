#include "spread/editor/function_words/function_words.h"

namespace editor {

namespace {

constexpr FunctionWords rows[] = {
    {"AND",
     {"TRUE als alle argumenten waar zijn; teksten en lege cellen van bereiken worden "
      "overgeslagen.",
      "TRUE, wenn alle Argumente wahr sind; Texte und leere Zellen von Bereichen werden "
      "übergangen.",
      "TRUE si tous les arguments sont vrais ; les textes et cellules vides des plages sont "
      "ignorés."}},
    {"FALSE",
     {"De waarheidswaarde FALSE.", "Der Wahrheitswert FALSE.", "La valeur logique FALSE."}},
    {"IF",
     {"Het tweede argument als de voorwaarde waar is, anders het derde (FALSE als dat er niet is).",
      "Das zweite Argument, wenn die Bedingung wahr ist, sonst das dritte (FALSE, wenn es fehlt).",
      "Le deuxième argument si la condition est vraie, sinon le troisième (FALSE s'il manque)."}},
    {"IFERROR",
     {"De waarde, of de vervangende waarde waar de waarde een fout is.",
      "Der Wert, oder der Ersatz, wo der Wert ein Fehler ist.",
      "La valeur, ou celle de repli là où la valeur est une erreur."}},
    {"IFNA",
     {"De waarde, of de vervangende waarde waar de waarde #N/A is; andere fouten blijven.",
      "Der Wert, oder der Ersatz, wo der Wert #N/A ist; andere Fehler bleiben.",
      "La valeur, ou celle de repli là où la valeur est #N/A ; les autres erreurs restent."}},
    {"IFS",
     {"Het resultaat achter de eerste voorwaarde die waar is; #N/A als er geen waar is.",
      "Das Ergebnis hinter der ersten wahren Bedingung; #N/A, wenn keine wahr ist.",
      "Le résultat de la première condition vraie ; #N/A si aucune ne l'est."}},
    {"NOT",
     {"TRUE voor FALSE of 0, FALSE voor al het andere.",
      "TRUE für FALSE oder 0, FALSE für alles andere.",
      "TRUE pour FALSE ou 0, FALSE pour tout le reste."}},
    {"OR",
     {"TRUE als minstens één argument waar is.", "TRUE, wenn mindestens ein Argument wahr ist.",
      "TRUE si au moins un argument est vrai."}},
    {"SWITCH",
     {"Het resultaat achter het eerste geval dat gelijk is aan de waarde, anders de "
      "standaardwaarde of #N/A.",
      "Das Ergebnis hinter dem ersten Fall, der dem Wert gleicht, sonst der Vorgabewert oder #N/A.",
      "Le résultat du premier cas égal à la valeur, sinon la valeur par défaut ou #N/A."}},
    {"TRUE", {"De waarheidswaarde TRUE.", "Der Wahrheitswert TRUE.", "La valeur logique TRUE."}},
    {"XOR",
     {"TRUE als een oneven aantal argumenten waar is.",
      "TRUE, wenn eine ungerade Anzahl der Argumente wahr ist.",
      "TRUE si un nombre impair d'arguments est vrai."}},
};

}  // namespace

std::span<const FunctionWords> logicWords() {
    return rows;
}

}  // namespace editor
