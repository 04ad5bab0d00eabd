#include "spread/editor/function_words/function_words.h"

namespace editor {

namespace {

constexpr FunctionWords rows[] = {
    {"ERROR.TYPE",
     {"Het nummer van een fout: 1 #NULL!, 2 #DIV/0!, 3 #VALUE!, 4 #REF!, 5 #NAME?, 6 #NUM!, 7 "
      "#N/A, 8 #CIRC!; #N/A voor al het andere.",
      "Die Nummer eines Fehlers: 1 #NULL!, 2 #DIV/0!, 3 #VALUE!, 4 #REF!, 5 #NAME?, 6 #NUM!, 7 "
      "#N/A, 8 #CIRC!; #N/A für alles andere.",
      "Le numéro d'une erreur : 1 #NULL!, 2 #DIV/0!, 3 #VALUE!, 4 #REF!, 5 #NAME?, 6 #NUM!, 7 "
      "#N/A, 8 #CIRC! ; #N/A pour tout le reste."}},
    {"ISBLANK",
     {"TRUE voor een lege cel.", "TRUE für eine leere Zelle.", "TRUE pour une cellule vide."}},
    {"ISERR",
     {"TRUE voor elke fout behalve #N/A.", "TRUE für jeden Fehler außer #N/A.",
      "TRUE pour toute erreur sauf #N/A."}},
    {"ISERROR", {"TRUE voor elke fout.", "TRUE für jeden Fehler.", "TRUE pour toute erreur."}},
    {"ISEVEN",
     {"TRUE als het gehele deel van het getal even is.",
      "TRUE, wenn der ganze Teil der Zahl gerade ist.",
      "TRUE si la partie entière du nombre est paire."}},
    {"ISFORMULA",
     {"TRUE als de cel een formule bevat.", "TRUE, wenn die Zelle eine Formel enthält.",
      "TRUE si la cellule contient une formule."}},
    {"ISLOGICAL",
     {"TRUE voor TRUE en FALSE.", "TRUE für TRUE und FALSE.", "TRUE pour TRUE et FALSE."}},
    {"ISNA", {"TRUE voor de fout #N/A.", "TRUE für den Fehler #N/A.", "TRUE pour l'erreur #N/A."}},
    {"ISNONTEXT",
     {"TRUE voor alles behalve een tekst; ook voor een lege cel.",
      "TRUE für alles außer einem Text; auch für eine leere Zelle.",
      "TRUE pour tout sauf un texte ; aussi pour une cellule vide."}},
    {"ISNUMBER", {"TRUE voor een getal.", "TRUE für eine Zahl.", "TRUE pour un nombre."}},
    {"ISODD",
     {"TRUE als het gehele deel van het getal oneven is.",
      "TRUE, wenn der ganze Teil der Zahl ungerade ist.",
      "TRUE si la partie entière du nombre est impaire."}},
    {"ISREF",
     {"TRUE voor een verwijzing naar cellen.", "TRUE für einen Bezug auf Zellen.",
      "TRUE pour une référence à des cellules."}},
    {"ISTEXT", {"TRUE voor een tekst.", "TRUE für einen Text.", "TRUE pour un texte."}},
    {"N",
     {"Een getal zoals het is, 1 voor TRUE, 0 voor FALSE en teksten; fouten blijven.",
      "Eine Zahl, wie sie ist, 1 für TRUE, 0 für FALSE und Texte; Fehler bleiben.",
      "Un nombre tel quel, 1 pour TRUE, 0 pour FALSE et les textes ; les erreurs restent."}},
    {"NA", {"De fout #N/A.", "Der Fehler #N/A.", "L'erreur #N/A."}},
    {"TYPE",
     {"Wat een waarde is: 1 getal, 2 tekst, 4 waarheidswaarde, 16 fout, 64 meerdere waarden.",
      "Was ein Wert ist: 1 Zahl, 2 Text, 4 Wahrheitswert, 16 Fehler, 64 mehrere Werte.",
      "Ce qu'est une valeur : 1 nombre, 2 texte, 4 valeur logique, 16 erreur, 64 plusieurs "
      "valeurs."}},
};

}  // namespace

std::span<const FunctionWords> informationWords() {
    return rows;
}

}  // namespace editor
