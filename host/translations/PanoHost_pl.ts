<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>MakeTexts</name>
    <message>
        <source>Reading the photos</source>
        <translation>Odczyt zdjęć</translation>
    </message>
    <message>
        <source>Developing RAW files</source>
        <translation>Wywoływanie plików RAW</translation>
    </message>
    <message>
        <source>Looking for details in the photos</source>
        <translation>Szukanie szczegółów na zdjęciach</translation>
    </message>
    <message>
        <source>Comparing neighbouring photos</source>
        <translation>Porównywanie sąsiednich zdjęć</translation>
    </message>
    <message>
        <source>Putting the photos in their places</source>
        <translation>Układanie zdjęć na ich miejscach</translation>
    </message>
    <message>
        <source>Comparing the light of the photos</source>
        <translation>Porównywanie jasności zdjęć</translation>
    </message>
    <message>
        <source>Joining brackets</source>
        <translation>Scalanie serii ekspozycji</translation>
    </message>
    <message>
        <source>Bending the photos into shape</source>
        <translation>Przekształcanie zdjęć</translation>
    </message>
    <message>
        <source>Blending the photos</source>
        <translation>Łączenie zdjęć</translation>
    </message>
    <message>
        <source>Fusing brackets</source>
        <translation>Fuzja serii ekspozycji</translation>
    </message>
    <message>
        <source>Writing the picture</source>
        <translation>Zapis panoramy</translation>
    </message>
    <message>
        <source>Making the page</source>
        <translation>Tworzenie strony</translation>
    </message>
    <message>
        <source>Cutting tiles to zoom into</source>
        <translation>Cięcie na kafelki do powiększania</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>%1 (step %2 of %3)</source>
        <translation>%1 (krok %2 z %3)</translation>
    </message>
    <message>
        <source>%1 x %2 in at %3 dpi</source>
        <translation>%1 x %2 cala przy %3 dpi</translation>
    </message>
    <message>
        <source>%1 x %2 cm at %3 dpi</source>
        <translation>%1 x %2 cm przy %3 dpi</translation>
    </message>
    <message>
        <source>%1 x %2 pixels at most (%3); takes up to %4 of the disk and %5 of memory.</source>
        <translation>Najwyżej %1 x %2 pikseli (%3); zajmie do %4 na dysku i %5 pamięci.</translation>
    </message>
</context>
<context>
    <name>PanoHost</name>
    <message>
        <source>%1 s left</source>
        <translation>pozostało %1 s</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>pozostało %1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>pozostało %1 h %2 min</translation>
    </message>
</context>
<context>
    <name>PanoHost::AboutBox</name>
    <message>
        <source>About panohost</source>
        <translation>O programie panohost</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licencje</translation>
    </message>
    <message>
        <source>panohost as a program: GPL-3.0-or-later; its source: GPL-2.0-or-later.</source>
        <translation>panohost jako program: GPL-3.0-or-later; jego kod źródłowy: GPL-2.0-or-later.</translation>
    </message>
    <message>
        <source>The plug-in library XPanoHead: MIT.</source>
        <translation>Biblioteka wtyczek XPanoHead: MIT.</translation>
    </message>
    <message>
        <source>They stand on:</source>
        <translation>Opierają się na:</translation>
    </message>
    <message>
        <source>&amp;Licences:</source>
        <translation>&amp;Licencje:</translation>
    </message>
</context>
<context>
    <name>PanoHost::ChoicePage</name>
    <message>
        <source>Needs photos only</source>
        <translation>Potrzebne tylko zdjęcia</translation>
    </message>
    <message>
        <source>Needs *.%1 record and photos</source>
        <translation>Potrzebny plik sesji (*.%1) i zdjęcia</translation>
    </message>
    <message>
        <source>%1 %2 by %3</source>
        <translation>%1 %2, %3</translation>
    </message>
    <message>
        <source>Which head took the photos?</source>
        <translation>Którą głowicą wykonano zdjęcia?</translation>
    </message>
    <message>
        <source>Choose the head, or drop its record and the photos onto this window.</source>
        <translation>Wybierz głowicę lub upuść jej plik sesji i zdjęcia na to okno.</translation>
    </message>
    <message>
        <source>Heads</source>
        <translation>Głowice</translation>
    </message>
    <message>
        <source>&amp;Head:</source>
        <translation>&amp;Głowica:</translation>
    </message>
    <message>
        <source>%1 record with %2 shots</source>
        <translation>Plik sesji %1, ujęcia: %2</translation>
    </message>
    <message>
        <source>%1, which no head can read</source>
        <translation>%1, nieczytelny dla żadnej głowicy</translation>
    </message>
    <message>
        <source>one photo</source>
        <translation>jedno zdjęcie</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>zdjęcia: %1</translation>
    </message>
    <message>
        <source>Looking at the files</source>
        <translation>Sprawdzanie plików</translation>
    </message>
    <message>
        <source>Next waits for the head that took the photos.</source>
        <translation>„Dalej” czeka na wybór głowicy, którą wykonano zdjęcia.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>Skopiuj</translation>
    </message>
</context>
<context>
    <name>PanoHost::FileDrop</name>
    <message>
        <source>Drop the files here</source>
        <translation>Upuść pliki tutaj</translation>
    </message>
</context>
<context>
    <name>PanoHost::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Ustawienia...</translation>
    </message>
    <message>
        <source>&amp;About panohost</source>
        <translation>&amp;O programie panohost</translation>
    </message>
</context>
<context>
    <name>PanoHost::ImportWizard</name>
    <message>
        <source>Import a panorama</source>
        <translation>Import panoramy</translation>
    </message>
    <message>
        <source>&amp;Another import</source>
        <translation>&amp;Nowy import</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>Nie wykonano</translation>
    </message>
    <message>
        <source>Files not taken</source>
        <translation>Nie przyjęto plików</translation>
    </message>
    <message>
        <source>Neither records nor photos are among these files.</source>
        <translation>Wśród tych plików nie ma ani plików sesji, ani zdjęć.</translation>
    </message>
    <message>
        <source>The name of a photo holds a double quote or a line end, which file dialogs cannot take. Rename it, or use &quot;panohost import&quot; on the command line.</source>
        <translation>Nazwa jednego ze zdjęć zawiera cudzysłów lub znak końca wiersza, których okna wyboru plików nie przyjmują. Zmień tę nazwę lub użyj „panohost import” w wierszu poleceń.</translation>
    </message>
    <message>
        <source>Close the window?</source>
        <translation>Zamknąć okno?</translation>
    </message>
    <message>
        <source>The panorama is still being made. What is finished of it is kept: made again, it goes on from there.</source>
        <translation>Panorama jest jeszcze tworzona. To, co już gotowe, zostanie zachowane: następnym razem praca ruszy od tego miejsca.</translation>
    </message>
    <message>
        <source>The panorama has not been saved.</source>
        <translation>Panorama nie została zapisana.</translation>
    </message>
    <message>
        <source>The photos and options of this page will be forgotten.</source>
        <translation>Zdjęcia i opcje tej strony zostaną zapomniane.</translation>
    </message>
    <message>
        <source>A step has failed</source>
        <translation>Krok się nie powiódł</translation>
    </message>
    <message>
        <source>This page could not do what you asked: %1. Your files are as they were. Try again, or go back and choose fewer files.</source>
        <translation>Ta strona nie mogła wykonać polecenia: %1. Twoje pliki są niezmienione. Spróbuj ponownie albo wróć i wybierz mniej plików.</translation>
    </message>
    <message>
        <source>Choose the head that took the photos, then Next. You can also drop the head&apos;s record and the photos, or the folder that holds them, onto this window.</source>
        <translation>Wybierz głowicę, którą wykonano zdjęcia, a potem „Dalej”. Możesz też upuścić na to okno plik sesji głowicy i zdjęcia albo katalog, w którym się znajdują.</translation>
    </message>
    <message>
        <source>Say where the panorama goes and press Make panorama. It can be stopped at any time: what is finished is kept, and made again it goes on from there.</source>
        <translation>Wskaż, gdzie ma powstać panorama, i naciśnij „Utwórz panoramę”. Pracę można zatrzymać w każdej chwili: to, co gotowe, zostaje zachowane, a następnym razem praca rusza od tego miejsca.</translation>
    </message>
    <message>
        <source>Next makes the panorama here. Or save the project and open it in Hugin, or save the description as JSON. Back returns to the import page; its photos and options are kept.</source>
        <translation>„Dalej” tworzy panoramę tutaj. Możesz też zapisać projekt i otworzyć go w programie Hugin albo zapisać opis jako JSON. „Wstecz” wraca do strony importu; jej zdjęcia i opcje zostają zachowane.</translation>
    </message>
    <message>
        <source>Choose the head&apos;s record and all its photos. Next is enabled when every photo has been read and their number is that of the record. Red text says what does not fit; the line below all says why, and its buttons put it right.</source>
        <translation>Wybierz plik sesji głowicy i wszystkie jej zdjęcia. „Dalej” jest dostępne, gdy wszystkie zdjęcia są odczytane, a ich liczba zgadza się z plikiem sesji. Czerwony tekst pokazuje, co nie pasuje; wiersz na samym dole mówi dlaczego, a jego przyciski to naprawiają.</translation>
    </message>
</context>
<context>
    <name>PanoHost::MakePage</name>
    <message>
        <source>Make the panorama</source>
        <translation>Utwórz panoramę</translation>
    </message>
    <message>
        <source>Every photo is put where it belongs, and all are joined to one picture.</source>
        <translation>Każde zdjęcie trafia na swoje miejsce, a wszystkie razem tworzą jeden obraz.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>Dzienn&amp;ik</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Dziennik</translation>
    </message>
    <message>
        <source>Show in fol&amp;der</source>
        <translation>Pokaż w &amp;katalogu</translation>
    </message>
    <message>
        <source>Open &amp;in browser</source>
        <translation>Otwórz w p&amp;rzeglądarce</translation>
    </message>
    <message>
        <source>Open in H&amp;ugin</source>
        <translation>Otwórz w programie &amp;Hugin</translation>
    </message>
    <message>
        <source>S&amp;ettings</source>
        <translation>Us&amp;tawienia</translation>
    </message>
    <message>
        <source>Make it again, in another size or as other files.</source>
        <translation>Utwórz ją jeszcze raz, w innym rozmiarze lub w innych plikach.</translation>
    </message>
    <message>
        <source>Hugin could not be started. Is it installed?</source>
        <translation>Nie udało się uruchomić programu Hugin. Czy jest zainstalowany?</translation>
    </message>
    <message>
        <source>&amp;Change...</source>
        <translation>Zmi&amp;eń...</translation>
    </message>
    <message>
        <source>As sharp as the photos</source>
        <translation>Tak ostra jak zdjęcia</translation>
    </message>
    <message>
        <source>Half as wide</source>
        <translation>Połowa szerokości</translation>
    </message>
    <message>
        <source>A quarter as wide: a quick look</source>
        <translation>Ćwierć szerokości: szybki podgląd</translation>
    </message>
    <message>
        <source>Fused: shows lights and shadows</source>
        <translation>Fuzja: widać światła i cienie</translation>
    </message>
    <message>
        <source>The reference exposure only</source>
        <translation>Tylko ekspozycja odniesienia</translation>
    </message>
    <message>
        <source>The light itself (HDR)</source>
        <translation>Rzeczywiste wartości światła (HDR)</translation>
    </message>
    <message>
        <source>A pa&amp;ge that opens in any browser</source>
        <translation>&amp;Strona otwierana w dowolnej przeglądarce</translation>
    </message>
    <message>
        <source>A folder to &amp;zoom into, of any size</source>
        <translation>Katal&amp;og do powiększania, dowolnej wielkości</translation>
    </message>
    <message>
        <source>&amp;Trust the head: skip the alignment</source>
        <translation>Zaufaj &amp;głowicy: pomiń wyrównanie</translation>
    </message>
    <message>
        <source>Photos stay at the angles that the head has recorded. Quicker, and right where the photos show nothing to go by.</source>
        <translation>Zdjęcia zostają pod kątami zapisanymi przez głowicę. Szybciej i właściwie tam, gdzie na zdjęciach nie ma punktów zaczepienia.</translation>
    </message>
    <message>
        <source>&amp;Picture:</source>
        <translation>O&amp;braz:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>Roz&amp;miar:</translation>
    </message>
    <message>
        <source>B&amp;rackets:</source>
        <translation>Br&amp;acketing:</translation>
    </message>
    <message>
        <source>Also:</source>
        <translation>Ponadto:</translation>
    </message>
    <message>
        <source>Angles:</source>
        <translation>Kąty:</translation>
    </message>
    <message>
        <source>Where the panorama goes</source>
        <translation>Gdzie zapisać panoramę</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.tif)</source>
        <translation>Obrazy (*.jpg *.tif)</translation>
    </message>
    <message>
        <source>Photos are RAW files, and no program is installed that develops them. Install libraw-bin, dcraw, darktable or rawtherapee, or take the JPEGs of these photos.</source>
        <translation>Zdjęcia są w plikach RAW, a nie ma zainstalowanego programu, który je wywołuje. Zainstaluj libraw-bin, dcraw, darktable lub rawtherapee albo użyj plików JPEG tych zdjęć.</translation>
    </message>
    <message>
        <source>Estimating...</source>
        <translation>Szacowanie...</translation>
    </message>
    <message>
        <source>Stopping...</source>
        <translation>Zatrzymywanie...</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Uruchamianie...</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>Zatrzyma&amp;j</translation>
    </message>
    <message>
        <source>&amp;Make panorama</source>
        <translation>&amp;Utwórz panoramę</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Ostrzeżenie: %1</translation>
    </message>
    <message>
        <source>Done:</source>
        <translation>Gotowe:</translation>
    </message>
    <message>
        <source>Stopped. What was finished is kept: Make panorama goes on from there.</source>
        <translation>Zatrzymano. To, co gotowe, zostało zachowane: „Utwórz panoramę” kontynuuje od tego miejsca.</translation>
    </message>
    <message>
        <source>No program is set up here that opens %1.</source>
        <translation>Nie ustawiono tu programu, który otwiera %1.</translation>
    </message>
</context>
<context>
    <name>PanoHost::MakeRunner</name>
    <message>
        <source>Not enough memory</source>
        <translation>Za mało pamięci</translation>
    </message>
    <message>
        <source>close other programs, or make the panorama smaller</source>
        <translation>zamknąć inne programy lub zmniejszyć panoramę</translation>
    </message>
</context>
<context>
    <name>PanoHost::PanoHostApplication</name>
    <message>
        <source>not enough memory</source>
        <translation>za mało pamięci</translation>
    </message>
    <message>
        <source>it does not say why</source>
        <translation>nie podano przyczyny</translation>
    </message>
</context>
<context>
    <name>PanoHost::PictureView</name>
    <message>
        <source>Finished panorama</source>
        <translation>Gotowa panorama</translation>
    </message>
    <message>
        <source>Wheel, + and -: magnify. Drag, arrows: move. Double click, 0: all of it.</source>
        <translation>Kółko myszy, + i -: powiększenie. Przeciąganie, strzałki: przesuwanie. Podwójne kliknięcie, 0: całość.</translation>
    </message>
</context>
<context>
    <name>PanoHost::PositionsModel</name>
    <message>
        <source>No.</source>
        <translation>Nr</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Zdjęcia</translation>
    </message>
    <message>
        <source>Yaw %1</source>
        <translation>Odchylenie %1</translation>
    </message>
    <message>
        <source>Pitch %1</source>
        <translation>Pochylenie %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Przechylenie %1</translation>
    </message>
    <message>
        <source>Aligned yaw %1</source>
        <translation>Odchylenie po wyrównaniu %1</translation>
    </message>
    <message>
        <source>Aligned pitch %1</source>
        <translation>Pochylenie po wyrównaniu %1</translation>
    </message>
    <message>
        <source>Aligned roll %1</source>
        <translation>Przechylenie po wyrównaniu %1</translation>
    </message>
    <message>
        <source>Off by %1</source>
        <translation>Różnica %1</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkty</translation>
    </message>
    <message>
        <source>Error (pixels)</source>
        <translation>Błąd (piksele)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Exposure (EV)</source>
        <translation>Ekspozycja (EV)</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Połączenia</translation>
    </message>
    <message>
        <source>As the head recorded it: to the right, in degrees</source>
        <translation>Według zapisu głowicy: w prawo, w stopniach</translation>
    </message>
    <message>
        <source>As the head recorded it: up, in degrees</source>
        <translation>Według zapisu głowicy: w górę, w stopniach</translation>
    </message>
    <message>
        <source>As the head recorded it: clockwise, in degrees</source>
        <translation>Według zapisu głowicy: zgodnie z ruchem wskazówek zegara, w stopniach</translation>
    </message>
    <message>
        <source>How far the photos show that the head stood elsewhere than recorded</source>
        <translation>O ile, sądząc po zdjęciach, głowica stała inaczej, niż zapisała</translation>
    </message>
    <message>
        <source>Spots that were found again in other photos</source>
        <translation>Miejsca odnalezione na innych zdjęciach</translation>
    </message>
    <message>
        <source>How far such spots still lie apart, half of them nearer</source>
        <translation>Jak daleko od siebie wciąż leżą takie miejsca; połowa z nich leży bliżej</translation>
    </message>
    <message>
        <source>Of the first photo: each step up lets in half as much light</source>
        <translation>Dla pierwszego zdjęcia: każdy stopień w górę wpuszcza o połowę mniej światła</translation>
    </message>
    <message>
        <source>Neighbours in which spots of this photo are looked for</source>
        <translation>Sąsiedzi, na których szukane są miejsca z tego zdjęcia</translation>
    </message>
</context>
<context>
    <name>PanoHost::PositionsTable</name>
    <message>
        <source>Positions</source>
        <translation>Pozycje</translation>
    </message>
</context>
<context>
    <name>PanoHost::Preferences</name>
    <message>
        <source>Use the &amp;desktop&apos;s file dialogs</source>
        <translation>Używaj systemowych &amp;okien wyboru plików</translation>
    </message>
    <message>
        <source>Share &amp;thumbnails with the desktop</source>
        <translation>Współdziel &amp;miniatury z systemem</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>where the system has them</source>
        <translation>tam, gdzie ma je system</translation>
    </message>
    <message>
        <source>Choo&amp;se...</source>
        <translation>Wy&amp;bierz...</translation>
    </message>
    <message>
        <source>Choose the folder of the tools</source>
        <translation>Wybierz katalog narzędzi</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Język:</translation>
    </message>
    <message>
        <source>&amp;Folder of the tools:</source>
        <translation>&amp;Katalog narzędzi:</translation>
    </message>
    <message>
        <source>Tools:</source>
        <translation>Narzędzia:</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Język systemu</translation>
    </message>
    <message>
        <source>Folder of the tools</source>
        <translation>Katalog narzędzi</translation>
    </message>
    <message>
        <source>%1: not found</source>
        <translation>%1: nie znaleziono</translation>
    </message>
    <message>
        <source>%1: found, %2</source>
        <translation>%1: znaleziono, %2</translation>
    </message>
    <message>
        <source>No such folder</source>
        <translation>Brak katalogu</translation>
    </message>
    <message>
        <source>%1 is no folder; choose another one, or leave the field empty.</source>
        <translation>%1 nie jest katalogiem; wybierz inny lub pozostaw pole puste.</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>Centymetry</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Cale</translation>
    </message>
    <message>
        <source>&amp;Units of prints:</source>
        <translation>Jednostki &amp;wydruków:</translation>
    </message>
    <message>
        <source>The language changes with the next start.</source>
        <translation>Zmiana języka zadziała po ponownym uruchomieniu.</translation>
    </message>
</context>
<context>
    <name>PanoHost::PreviewGuide</name>
    <message>
        <source>Drop the head&apos;s record and the photos here</source>
        <translation>Upuść tutaj plik sesji głowicy i zdjęcia</translation>
    </message>
    <message>
        <source>Drop the photos here</source>
        <translation>Upuść tutaj zdjęcia</translation>
    </message>
    <message>
        <source>The wheel zooms, a double click shows all.</source>
        <translation>Kółko myszy powiększa, podwójne kliknięcie pokazuje całość.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ReadingBar</name>
    <message>
        <source>Reading photos</source>
        <translation>Odczyt zdjęć</translation>
    </message>
    <message>
        <source>%1 photos are handed over...</source>
        <translation>Przekazywanie zdjęć: %1...</translation>
    </message>
    <message>
        <source>%1 of %2 photos</source>
        <translation>Zdjęcia: %1 z %2</translation>
    </message>
    <message>
        <source>, %1 per second</source>
        <translation>, %1 na sekundę</translation>
    </message>
</context>
<context>
    <name>PanoHost::RecentList</name>
    <message>
        <source>%1, %2 photos, %3</source>
        <translation>%1, zdjęcia: %2, %3</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Recent shoots</source>
        <translation>Ostatnie sesje</translation>
    </message>
    <message>
        <source>&amp;Recent shoots:</source>
        <translation>Ostatnie &amp;sesje:</translation>
    </message>
    <message>
        <source>Remove the shoot from this list</source>
        <translation>Usuń sesję z tej listy</translation>
    </message>
    <message>
        <source>&amp;Clear list</source>
        <translation>Wyczyść &amp;listę</translation>
    </message>
    <message>
        <source>The files are gone.</source>
        <translation>Plików już nie ma.</translation>
    </message>
    <message>
        <source>The files are gone</source>
        <translation>Plików już nie ma</translation>
    </message>
    <message>
        <source>%1 cannot be found; it may lie on a medium that is not there. Remove it from the list?</source>
        <translation>Nie można znaleźć %1; może znajduje się na niepodłączonym nośniku. Usunąć z listy?</translation>
    </message>
</context>
<context>
    <name>PanoHost::ResultPage</name>
    <message>
        <source>The panorama</source>
        <translation>Panorama</translation>
    </message>
    <message>
        <source>Look whether the photos stand where they belong, then save the panorama.</source>
        <translation>Sprawdź, czy zdjęcia są na swoich miejscach, a potem zapisz panoramę.</translation>
    </message>
    <message>
        <source>Views of the panorama</source>
        <translation>Widoki panoramy</translation>
    </message>
    <message>
        <source>Pictu&amp;re</source>
        <translation>Ob&amp;raz</translation>
    </message>
    <message>
        <source>P&amp;ositions</source>
        <translation>P&amp;ozycje</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Podsumowanie</translation>
    </message>
    <message>
        <source>S&amp;ummary</source>
        <translation>Podsu&amp;mowanie</translation>
    </message>
    <message>
        <source>Back to &amp;enter it</source>
        <translation>Wróć i wp&amp;isz</translation>
    </message>
    <message>
        <source>Save &amp;project...</source>
        <translation>Zapisz pro&amp;jekt...</translation>
    </message>
    <message>
        <source>Save &amp;description...</source>
        <translation>Zapisz opi&amp;s...</translation>
    </message>
    <message>
        <source>Save &amp;table...</source>
        <translation>Zapisz &amp;tabelę...</translation>
    </message>
    <message>
        <source>Open in Hu&amp;gin</source>
        <translation>Otwórz w programie &amp;Hugin</translation>
    </message>
    <message>
        <source>Nothing saved</source>
        <translation>Nic nie zapisano</translation>
    </message>
    <message>
        <source>The panorama has not been saved. Go on all the same?</source>
        <translation>Panorama nie została zapisana. Kontynuować mimo to?</translation>
    </message>
    <message>
        <source>Nothing that can be saved.</source>
        <translation>Nie ma nic do zapisania.</translation>
    </message>
    <message>
        <source>To look at</source>
        <translation>Do sprawdzenia</translation>
    </message>
    <message>
        <source>One more stands in the summary.</source>
        <translation>Jeszcze jedna uwaga jest w podsumowaniu.</translation>
    </message>
    <message>
        <source>%1 more stand in the summary.</source>
        <translation>Dalsze uwagi w podsumowaniu: %1.</translation>
    </message>
    <message>
        <source>The project was not saved: the focal length is not known. Go back and enter it in the line below the page.</source>
        <translation>Projekt nie został zapisany: ogniskowa nie jest znana. Wróć i wpisz ją w wierszu pod stroną.</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Zapisz projekt</translation>
    </message>
    <message>
        <source>Hugin projects (*.pto)</source>
        <translation>Projekty Hugin (*.pto)</translation>
    </message>
    <message>
        <source>Save the description</source>
        <translation>Zapisz opis</translation>
    </message>
    <message>
        <source>Descriptions (*.json)</source>
        <translation>Opisy (*.json)</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Zapisz tabelę</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Wartości rozdzielone przecinkami (*.csv)</translation>
    </message>
    <message>
        <source>Hugin could not be started. Is it installed? Try to open the saved project from Hugin itself.</source>
        <translation>Nie udało się uruchomić programu Hugin. Czy jest zainstalowany? Spróbuj otworzyć zapisany projekt w samym programie Hugin.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ResultTexts</name>
    <message>
        <source>%1 at %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 zdjęcie</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>Zdjęcia: %1</translation>
    </message>
    <message>
        <source>1 position</source>
        <translation>1 pozycja</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>pozycje: %1</translation>
    </message>
    <message>
        <source> (brackets of %1)</source>
        <translation> (bracketing po %1)</translation>
    </message>
    <message>
        <source> (brackets of %1 to %2)</source>
        <translation> (bracketing po %1–%2)</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>no links</source>
        <translation>brak połączeń</translation>
    </message>
    <message>
        <source>1 link</source>
        <translation>1 połączenie</translation>
    </message>
    <message>
        <source>%1 links</source>
        <translation>połączenia: %1</translation>
    </message>
    <message>
        <source>%1, into HDR</source>
        <translation>%1, wynik w HDR</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Plik sesji</translation>
    </message>
    <message>
        <source>Within brackets</source>
        <translation>W obrębie serii ekspozycji</translation>
    </message>
    <message>
        <source>as one</source>
        <translation>jako całość</translation>
    </message>
    <message>
        <source>The photos of a bracket lie exactly on each other.</source>
        <translation>Zdjęcia jednej serii leżą dokładnie na sobie.</translation>
    </message>
    <message>
        <source>Right for a firm tripod: one direction counts for all of them.</source>
        <translation>Właściwe przy stabilnym statywie: jeden kierunek obowiązuje dla wszystkich.</translation>
    </message>
    <message>
        <source>each by itself</source>
        <translation>każde osobno</translation>
    </message>
    <message>
        <source>Control points are looked for between the photos of a bracket.</source>
        <translation>Punkty kontrolne są wyszukiwane między zdjęciami serii.</translation>
    </message>
    <message>
        <source>Right when the camera may have moved between two exposures.</source>
        <translation>Właściwe, gdy aparat mógł się poruszyć między dwiema ekspozycjami.</translation>
    </message>
    <message>
        <source>Wrong points</source>
        <translation>Błędne punkty</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>są usuwane</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>zostają</translation>
    </message>
    <message>
        <source>They are marked, and move nothing.</source>
        <translation>Są oznaczane i niczego nie przesuwają.</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Obiektyw</translation>
    </message>
    <message>
        <source>As for 35 mm film: it says how wide a photo sees.</source>
        <translation>W przeliczeniu na film 35 mm: ogniskowa mówi, jak szeroki kąt obejmuje zdjęcie.</translation>
    </message>
    <message>
        <source>fisheye lens, focal length not known</source>
        <translation>obiektyw typu rybie oko, ogniskowa nieznana</translation>
    </message>
    <message>
        <source>standard lens, focal length not known</source>
        <translation>obiektyw standardowy, ogniskowa nieznana</translation>
    </message>
    <message>
        <source>Nothing can be put together without it.</source>
        <translation>Bez niej niczego nie da się złożyć.</translation>
    </message>
    <message>
        <source>fisheye lens of %1 mm</source>
        <translation>obiektyw typu rybie oko %1 mm</translation>
    </message>
    <message>
        <source>standard lens of %1 mm</source>
        <translation>obiektyw standardowy %1 mm</translation>
    </message>
    <message>
        <source>Brackets</source>
        <translation>Bracketing</translation>
    </message>
    <message>
        <source>none, into HDR</source>
        <translation>brak, wynik w HDR</translation>
    </message>
    <message>
        <source>HDR was chosen, but there is one exposure of each position.</source>
        <translation>Wybrano HDR, ale każda pozycja ma tylko jedną ekspozycję.</translation>
    </message>
    <message>
        <source>into HDR</source>
        <translation>scalany w HDR</translation>
    </message>
    <message>
        <source>The picture holds the light itself, from all exposures.</source>
        <translation>Obraz zawiera rzeczywiste wartości światła ze wszystkich ekspozycji.</translation>
    </message>
    <message>
        <source>For programs that work on with it: no screen shows all of it.</source>
        <translation>Dla programów, które go dalej obrabiają: żaden ekran nie pokaże całości.</translation>
    </message>
    <message>
        <source>into an ordinary picture</source>
        <translation>scalany w zwykły obraz</translation>
    </message>
    <message>
        <source>Of each exposure what is neither too dark nor too bright.</source>
        <translation>Z każdej ekspozycji to, co nie jest ani za ciemne, ani za jasne.</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Połączenia</translation>
    </message>
    <message>
        <source>Control points are looked for in these pairs of neighbours alone.</source>
        <translation>Punkty kontrolne są wyszukiwane tylko w tych parach sąsiadów.</translation>
    </message>
    <message>
        <source>Photos that are no neighbours are never compared: a sky or a wall that looks alike cannot lead astray.</source>
        <translation>Zdjęcia, które nie sąsiadują, nigdy nie są porównywane: jednolite niebo czy ściana nie wprowadzą w błąd.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>brak</translation>
    </message>
    <message>
        <source>One position has no neighbours.</source>
        <translation>Jedna pozycja nie ma sąsiadów.</translation>
    </message>
    <message>
        <source>All photos that overlap are compared instead.</source>
        <translation>Zamiast tego porównywane są wszystkie zdjęcia, które się nakładają.</translation>
    </message>
    <message>
        <source>Control points</source>
        <translation>Punkty kontrolne</translation>
    </message>
    <message>
        <source>not looked for</source>
        <translation>nie są wyszukiwane</translation>
    </message>
    <message>
        <source>Photos stay where the head has recorded them.</source>
        <translation>Zdjęcia zostają na miejscach zapisanych przez głowicę.</translation>
    </message>
    <message>
        <source>In Hugin you can set control points by hand.</source>
        <translation>W programie Hugin można dodać punkty kontrolne ręcznie.</translation>
    </message>
    <message>
        <source>looked for</source>
        <translation>są wyszukiwane</translation>
    </message>
    <message>
        <source>Spots that two photos share say how they belong together.</source>
        <translation>Miejsca wspólne dla dwóch zdjęć mówią, jak zdjęcia do siebie pasują.</translation>
    </message>
    <message>
        <source>looked for in one exposure of each bracket</source>
        <translation>są wyszukiwane w jednej ekspozycji każdej serii</translation>
    </message>
    <message>
        <source>In the first photo of each bracket, the reference.</source>
        <translation>Na pierwszym zdjęciu każdej serii, czyli na zdjęciu odniesienia.</translation>
    </message>
    <message>
        <source>looked for in all exposures</source>
        <translation>są wyszukiwane we wszystkich ekspozycjach</translation>
    </message>
    <message>
        <source>Takes longer, and finds more where one exposure is too dark or too bright.</source>
        <translation>Trwa dłużej i znajduje więcej tam, gdzie jedna z ekspozycji jest za ciemna lub za jasna.</translation>
    </message>
    <message>
        <source>Optimisation</source>
        <translation>Optymalizacja</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>pominięta</translation>
    </message>
    <message>
        <source>The head is trusted: photos stay where it has recorded them.</source>
        <translation>Głowica jest uznana za wiarygodną: zdjęcia zostają na zapisanych przez nią miejscach.</translation>
    </message>
    <message>
        <source>Right for a head without play. It saves the time of looking for points.</source>
        <translation>Właściwe dla głowicy bez luzów. Oszczędza czas szukania punktów.</translation>
    </message>
    <message>
        <source>from the record</source>
        <translation>od pliku sesji</translation>
    </message>
    <message>
        <source>Control points move the photos; those without any stay as recorded.</source>
        <translation>Punkty kontrolne przesuwają zdjęcia; te bez punktów zostają na zapisanych miejscach.</translation>
    </message>
    <message>
        <source>The usual choice: skies and walls without a mark stay in place.</source>
        <translation>Zwykły wybór: niebo i ściany bez punktów zaczepienia zostają na swoim miejscu.</translation>
    </message>
    <message>
        <source>free</source>
        <translation>swobodna</translation>
    </message>
    <message>
        <source>The record is where the search begins, no more.</source>
        <translation>Plik sesji to tylko punkt wyjścia poszukiwań.</translation>
    </message>
    <message>
        <source>Right when the head has slipped.</source>
        <translation>Właściwe, gdy głowica się przesunęła.</translation>
    </message>
    <message>
        <source>The focal length is not known: no photo names it. Go back and enter it in the line below the page, at &quot;Focal length&quot;.</source>
        <translation>Ogniskowa nie jest znana: żadne zdjęcie jej nie podaje. Wróć i wpisz ją w wierszu pod stroną, w polu „Ogniskowa”.</translation>
    </message>
    <message>
        <source>The focal length is not known: neither the record nor a photo names it. Go back and enter it in the line below the page, at &quot;Focal length&quot;.</source>
        <translation>Ogniskowa nie jest znana: nie podaje jej ani plik sesji, ani żadne zdjęcie. Wróć i wpisz ją w wierszu pod stroną, w polu „Ogniskowa”.</translation>
    </message>
    <message>
        <source>The lens is taken for a fisheye, and no photo says so. If it is none, go back and choose the standard lens.</source>
        <translation>Przyjęto, że obiektyw to rybie oko, ale żadne zdjęcie tego nie podaje. Jeśli tak nie jest, wróć i wybierz obiektyw standardowy.</translation>
    </message>
    <message>
        <source>The photos say that they were taken through a fisheye, and the lens is taken for a standard one. If it is a fisheye, go back and choose that.</source>
        <translation>Według zdjęć użyto rybiego oka, a przyjęto obiektyw standardowy. Jeśli to rybie oko, wróć i wybierz je.</translation>
    </message>
    <message>
        <source>Until then all %1 positions lie on one point.</source>
        <translation>Do tego czasu wszystkie pozycje (%1) leżą w jednym punkcie.</translation>
    </message>
    <message>
        <source>All %1 positions lie on one point: the record says that the head did not move.</source>
        <translation>Wszystkie pozycje (%1) leżą w jednym punkcie: według pliku sesji głowica się nie poruszyła.</translation>
    </message>
    <message>
        <source>No two photos are linked: through a lens of %1 mm neighbours are too far apart. Is the focal length right?</source>
        <translation>Żadne dwa zdjęcia nie są połączone: przy obiektywie %1 mm sąsiedzi są zbyt daleko od siebie. Czy ogniskowa jest prawidłowa?</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Kolejność</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Przerwa</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Zdjęcia</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 was not saved: there is a folder of that name. Choose another name.</source>
        <translation>Nie zapisano %1: istnieje katalog o tej nazwie. Wybierz inną nazwę.</translation>
    </message>
    <message>
        <source>%1 was not saved: the folder %2 is not there. Was it moved, or its disk unplugged? Choose another folder.</source>
        <translation>Nie zapisano %1: nie ma katalogu %2. Może go przeniesiono lub odłączono jego dysk? Wybierz inny katalog.</translation>
    </message>
    <message>
        <source>%1 was not saved: the disk is full. Make room on it, or choose a folder on another disk.</source>
        <translation>Nie zapisano %1: dysk jest pełny. Zwolnij miejsce lub wybierz katalog na innym dysku.</translation>
    </message>
    <message>
        <source>%1 was not saved: nothing can be written in %2. Choose a folder of your own, such as your pictures.</source>
        <translation>Nie zapisano %1: w %2 nie można niczego zapisać. Wybierz własny katalog, na przykład ze swoimi obrazami.</translation>
    </message>
    <message>
        <source>%1 was not saved: a file of that name is there and is protected. Choose another name.</source>
        <translation>Nie zapisano %1: plik o tej nazwie już istnieje i jest zabezpieczony przed zapisem. Wybierz inną nazwę.</translation>
    </message>
    <message>
        <source>%1 was not saved: the name is too long. Choose a shorter one.</source>
        <translation>Nie zapisano %1: nazwa jest za długa. Wybierz krótszą.</translation>
    </message>
    <message>
        <source>%1 was not saved: %2</source>
        <translation>Nie zapisano %1: %2</translation>
    </message>
</context>
<context>
    <name>PanoHost::Said</name>
    <message>
        <source>no control points are wanted (automatic detection is off): kept as recorded</source>
        <translation>punkty kontrolne są niepotrzebne (automatyczne wyszukiwanie wyłączone): zdjęcia zostają na zapisanych miejscach</translation>
    </message>
    <message>
        <source>photos are left as recorded (optimisation is skipped)</source>
        <translation>zdjęcia zostają na zapisanych miejscach (optymalizacja pominięta)</translation>
    </message>
    <message>
        <source>there is one photo only: kept as recorded</source>
        <translation>jest tylko jedno zdjęcie: zostaje na zapisanym miejscu</translation>
    </message>
    <message>
        <source>no two photos overlap where the record puts them: kept as recorded</source>
        <translation>według pliku sesji żadne dwa zdjęcia się nie nakładają: zostają na zapisanych miejscach</translation>
    </message>
    <message>
        <source>no spot was found in two photos (nothing but sky or fog, or the photos are not of this record): kept as recorded</source>
        <translation>na żadnych dwóch zdjęciach nie znaleziono wspólnego miejsca (samo niebo lub mgła albo zdjęcia nie są z tej sesji): zostają na zapisanych miejscach</translation>
    </message>
    <message>
        <source>%1; kept as recorded</source>
        <translation>%1; zostaje na zapisanym miejscu</translation>
    </message>
    <message>
        <source>none of the photos can be used: were they moved since the import?</source>
        <translation>żadne zdjęcie nie nadaje się do użycia: czy po imporcie je przeniesiono?</translation>
    </message>
    <message>
        <source>the photos fit the order &apos;%1&apos; better than &apos;%2&apos;: import them with --mode %1</source>
        <translation>zdjęcia lepiej pasują do kolejności „%1” niż „%2”: zaimportować je w kolejności %1</translation>
    </message>
    <message>
        <source>the panorama is made %1 stops brighter: what is white in a photo stays white</source>
        <translation>panorama zostaje rozjaśniona o %1 EV: co na zdjęciu jest białe, pozostaje białe</translation>
    </message>
    <message>
        <source>%1 of %2 tied, %3, median %4 pixels</source>
        <translation>powiązane: %1 z %2, %3, mediana %4 piksela</translation>
    </message>
    <message>
        <source>%1 point</source>
        <translation>%1 punkt</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>punkty: %1</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> i jeszcze %1</translation>
    </message>
    <message>
        <source>no points in %1 (%2): kept where the head put it</source>
        <translation>%1 bez punktów (%2): zostaje tam, gdzie umieściła je głowica</translation>
    </message>
    <message>
        <source>no points in %1 (%2): kept where the head put them</source>
        <translation>%1 bez punktów (%2): zostają tam, gdzie umieściła je głowica</translation>
    </message>
    <message>
        <source>lens %1 mm instead of %2</source>
        <translation>ogniskowa %1 mm zamiast %2</translation>
    </message>
    <message>
        <source>the lens darkens its corners by %1 %: evened out</source>
        <translation>obiektyw przyciemnia rogi o %1 %: wyrównano</translation>
    </message>
    <message>
        <source>exposures are not what the photos say, by up to %1 stops: evened out</source>
        <translation>ekspozycje różnią się od podanych w zdjęciach, najwyżej o %1 EV: wyrównano</translation>
    </message>
    <message>
        <source>the head repeats to %1 degrees</source>
        <translation>powtarzalność głowicy: %1 stopnia</translation>
    </message>
    <message>
        <source>less than %1</source>
        <translation>poniżej %1</translation>
    </message>
    <message>
        <source>the camera sits %1 degrees crooked on the head</source>
        <translation>aparat jest zamocowany na głowicy krzywo, o %1 stopnia</translation>
    </message>
    <message>
        <source>the head&apos;s steps are %1 (across) and %2 (up) times what was stated</source>
        <translation>krok głowicy względem podanego: %1 raza w poziomie, %2 raza w pionie</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees farther right than recorded: did its turning axis slip?</source>
        <translation>od %1 głowica stoi o %2 stopnia bardziej w prawo, niż zapisano: czy przesunęła się oś obrotu?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees farther left than recorded: did its turning axis slip?</source>
        <translation>od %1 głowica stoi o %2 stopnia bardziej w lewo, niż zapisano: czy przesunęła się oś obrotu?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees higher than recorded: did its tilting axis slip?</source>
        <translation>od %1 głowica stoi o %2 stopnia wyżej, niż zapisano: czy przesunęła się oś pochylenia?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees lower than recorded: did its tilting axis slip?</source>
        <translation>od %1 głowica stoi o %2 stopnia niżej, niż zapisano: czy przesunęła się oś pochylenia?</translation>
    </message>
    <message>
        <source>%1 was taken %2 degrees from where the head says: was it bumped?</source>
        <translation>%1 wykonano %2 stopnia od kierunku podanego przez głowicę: czy ktoś ją potrącił?</translation>
    </message>
    <message>
        <source>residuals suggest parallax (%1 pixels): near things move against far ones; is the camera&apos;s nodal point on the head&apos;s axes?</source>
        <translation>błędy resztkowe wskazują na paralaksę (%1 piksela): bliskie obiekty przesuwają się względem dalekich; czy punkt nodalny aparatu leży na osiach głowicy?</translation>
    </message>
    <message>
        <source>was %1 x %2 pixels when imported, is now %3 x %4</source>
        <translation>przy imporcie było %1 x %2 pikseli, teraz jest %3 x %4</translation>
    </message>
    <message>
        <source>cannot keep the features of photos there: %1</source>
        <translation>nie można tam zapisać szczegółów zdjęć: %1</translation>
    </message>
    <message>
        <source>TMPDIR names a folder with more room</source>
        <translation>ustawić TMPDIR na katalog, w którym jest więcej miejsca</translation>
    </message>
    <message>
        <source>cannot read the features of photos back: %1</source>
        <translation>nie można odczytać zapisanych szczegółów zdjęć: %1</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>brak danych</translation>
    </message>
    <message>
        <source>%1: %2, bracket %3, focal %4, lens %5</source>
        <translation>%1: %2, bracketing po %3, ogniskowa: %4, obiektyw: %5</translation>
    </message>
    <message>
        <source>copy it from the card again</source>
        <translation>skopiować jeszcze raz z karty</translation>
    </message>
    <message>
        <source>%1 given, %2 readable, focal %3, lens %4</source>
        <translation>wybrano: %1, czytelne: %2, ogniskowa: %3, obiektyw: %4</translation>
    </message>
    <message>
        <source>neither the photos nor the record name the focal length</source>
        <translation>ogniskowej nie podają ani zdjęcia, ani plik sesji</translation>
    </message>
    <message>
        <source>give it, as for 35 mm film: --focal 24</source>
        <translation>wpisać ją w przeliczeniu na film 35 mm</translation>
    </message>
    <message>
        <source>not all photos have a capture time</source>
        <translation>nie wszystkie zdjęcia mają czas wykonania</translation>
    </message>
    <message>
        <source>%1 was taken before %2</source>
        <translation>%1 wykonano przed %2</translation>
    </message>
    <message>
        <source>try --order time</source>
        <translation>uporządkować według czasu</translation>
    </message>
    <message>
        <source>capture times agree</source>
        <translation>czasy wykonania się zgadzają</translation>
    </message>
    <message>
        <source>none</source>
        <translation>brak</translation>
    </message>
    <message>
        <source>%1 s after %2 (usually %3 s)</source>
        <translation>%1 s po %2 (zwykle %3 s)</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>standardowy</translation>
    </message>
    <message>
        <source>fisheye</source>
        <translation>rybie oko</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>this folder cannot be made</source>
        <translation>nie można utworzyć tego katalogu</translation>
    </message>
    <message>
        <source>is the disk full, or the folder above it read-only?</source>
        <translation>czy dysk jest pełny albo katalog nadrzędny tylko do odczytu?</translation>
    </message>
    <message>
        <source>no photo reaches these sides of the cube, which are left out: %1</source>
        <translation>żadne zdjęcie nie sięga tych ścian sześcianu, są pominięte: %1</translation>
    </message>
    <message>
        <source>cannot be written (%1)</source>
        <translation>nie można zapisać (%1)</translation>
    </message>
    <message>
        <source>make room there or choose another place</source>
        <translation>zwolnić tam miejsce lub wybrać inne</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>katalog %1 nie istnieje</translation>
    </message>
    <message>
        <source>create it or choose another place</source>
        <translation>utworzyć go lub wybrać inne miejsce</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>to katalog</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>to nie jest zwykły plik</translation>
    </message>
    <message>
        <source>remove it or choose another name with -o</source>
        <translation>usunąć lub wybrać inną nazwę</translation>
    </message>
    <message>
        <source>is a file, and a folder of that name is wanted</source>
        <translation>to plik, a potrzebny jest katalog o tej nazwie</translation>
    </message>
    <message>
        <source>is a folder that panohost has not made</source>
        <translation>to katalog, którego nie utworzył panohost</translation>
    </message>
    <message>
        <source>it left a file that is not complete</source>
        <translation>pozostał niepełny plik</translation>
    </message>
    <message>
        <source>is the disk full? make room and try again</source>
        <translation>czy dysk jest pełny? zwolnić miejsce i spróbować ponownie</translation>
    </message>
    <message>
        <source>make room there and try again</source>
        <translation>zwolnić tam miejsce i spróbować ponownie</translation>
    </message>
    <message>
        <source>the panorama has %1 x %2 pixels, and JPEG files at most %3 to a side</source>
        <translation>panorama ma %1 x %2 pikseli, a pliki JPEG najwyżej %3 na bok</translation>
    </message>
    <message>
        <source>name it .tif, or make it smaller with --size</source>
        <translation>zapisać jako .tif lub wybrać mniejszy rozmiar</translation>
    </message>
    <message>
        <source>this panorama&apos;s values are not light</source>
        <translation>panorama nie zawiera rzeczywistych wartości światła</translation>
    </message>
    <message>
        <source>needs --output hdr</source>
        <translation>wybrać „Rzeczywiste wartości światła (HDR)”</translation>
    </message>
    <message>
        <source>is not the panorama that was stitched last</source>
        <translation>to nie jest ostatnio złożona panorama</translation>
    </message>
    <message>
        <source>remove it and try again</source>
        <translation>usunąć i spróbować ponownie</translation>
    </message>
    <message>
        <source>it left %1 incomplete</source>
        <translation>plik %1 pozostał niepełny</translation>
    </message>
    <message>
        <source>is the disk full?</source>
        <translation>czy dysk jest pełny?</translation>
    </message>
    <message>
        <source>the address where the folder will be reached is not known</source>
        <translation>adres, pod którym katalog będzie dostępny, nie jest znany</translation>
    </message>
    <message>
        <source>give it, such as https://example.org/panoramas</source>
        <translation>podać go, na przykład https://example.org/panoramas</translation>
    </message>
    <message>
        <source>%1 less %2 ignored</source>
        <translation>%1 bez %2 pominiętych</translation>
    </message>
    <message>
        <source>%1, %2, bracket %3, %4 ignored</source>
        <translation>%1, %2, bracketing po %3, pominięte: %4</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>zdjęcia</translation>
    </message>
    <message>
        <source>--ignore %1 leaves none of %2</source>
        <translation>pominięto %1 z %2, nic nie zostaje</translation>
    </message>
    <message>
        <source>ignore fewer, or name all photos</source>
        <translation>pominąć mniej lub wybrać wszystkie zdjęcia</translation>
    </message>
    <message>
        <source>--bracket %1 is more than %2</source>
        <translation>serie po %1, a jest tylko %2</translation>
    </message>
    <message>
        <source>each position needs all its exposures</source>
        <translation>każda pozycja wymaga wszystkich ekspozycji</translation>
    </message>
    <message>
        <source>%1 are not a multiple of bracket %2</source>
        <translation>%1, nie da się z tego złożyć pełnych serii po %2</translation>
    </message>
    <message>
        <source>each position needs all its exposures; --ignore N leaves out the first N photos</source>
        <translation>każda pozycja wymaga wszystkich ekspozycji; zbędne pliki na początku można pominąć</translation>
    </message>
    <message>
        <source>%1 (%2 in brackets of %3)</source>
        <translation>%1 (%2 w seriach po %3)</translation>
    </message>
    <message>
        <source>%1 do not divide %2 evenly</source>
        <translation>%2, nie da się tego podzielić równo na %1</translation>
    </message>
    <message>
        <source>are photos missing? --ignore N leaves out the first N photos</source>
        <translation>czy brakuje zdjęć? zbędne pliki na początku można pominąć</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 i jeszcze %2</translation>
    </message>
    <message>
        <source>no pause tells where</source>
        <translation>żadna przerwa nie wskazuje gdzie</translation>
    </message>
    <message>
        <source>the longest pause: %1, in row %2 as they were taken</source>
        <translation>najdłuższa przerwa: %1, w wierszu %2 według kolejności wykonania</translation>
    </message>
    <message>
        <source>the longest pause: %1, in column %2 as they were taken</source>
        <translation>najdłuższa przerwa: %1, w kolumnie %2 według kolejności wykonania</translation>
    </message>
    <message>
        <source>the pictures do not tell which are missing: %1</source>
        <translation>ze zdjęć nie wynika, których brakuje: %1</translation>
    </message>
    <message>
        <source>no photo for %1 (rows from the top, columns from the left)</source>
        <translation>brak zdjęcia: %1 (wiersze od góry, kolumny od lewej)</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>nie ma takiego pliku</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>to nie jest zwykły plik</translation>
    </message>
    <message>
        <source>no &lt;shoot&gt; pictures</source>
        <translation>brak zdjęć w &lt;shoot&gt;</translation>
    </message>
    <message>
        <source>is it an old-style Papywizard file (image/coords)?</source>
        <translation>czy to plik Papywizard starego typu (image/coords)?</translation>
    </message>
    <message>
        <source>its &lt;shoot&gt; holds no &lt;pict&gt;: no shot was recorded</source>
        <translation>w &lt;shoot&gt; nie ma żadnego &lt;pict&gt;: nie zapisano ani jednego ujęcia</translation>
    </message>
    <message>
        <source>choose the record of a finished shoot</source>
        <translation>wybrać plik ukończonej sesji</translation>
    </message>
    <message>
        <source>no op_shoot command: no shot was recorded</source>
        <translation>brak polecenia op_shoot: nie zapisano ani jednego ujęcia</translation>
    </message>
    <message>
        <source>is it the script that the head ran?</source>
        <translation>czy to skrypt wykonany przez głowicę?</translation>
    </message>
    <message>
        <source>correct this line, or choose another script</source>
        <translation>poprawić ten wiersz lub wybrać inny skrypt</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>wiersz %1: %2</translation>
    </message>
    <message>
        <source>is it the record that the head wrote?</source>
        <translation>czy to plik sesji zapisany przez głowicę?</translation>
    </message>
    <message>
        <source>no such record</source>
        <translation>nie ma takiego pliku sesji</translation>
    </message>
    <message>
        <source>check the name</source>
        <translation>sprawdzić nazwę</translation>
    </message>
    <message>
        <source>unknown head &apos;%1&apos;%2</source>
        <translation>nieznana głowica „%1”%2</translation>
    </message>
    <message>
        <source>heads: %1</source>
        <translation>głowice: %1</translation>
    </message>
    <message>
        <source>no record of some of its shots can be made</source>
        <translation>nie można utworzyć pliku sesji tylko z części ujęć</translation>
    </message>
    <message>
        <source>take the shots by hand</source>
        <translation>wykonać te ujęcia ręcznie</translation>
    </message>
    <message>
        <source>using %1</source>
        <translation>używana jest biblioteka %1</translation>
    </message>
    <message>
        <source>has no import plug-in for %1</source>
        <translation>nie zawiera wtyczki importu dla %1</translation>
    </message>
    <message>
        <source>set --plugin to another library</source>
        <translation>użyć innej biblioteki</translation>
    </message>
    <message>
        <source>the page refuses them</source>
        <translation>strona je odrzuca</translation>
    </message>
    <message>
        <source>make it first</source>
        <translation>najpierw go utworzyć</translation>
    </message>
    <message>
        <source>name a file in it</source>
        <translation>wybrać plik w tym katalogu</translation>
    </message>
    <message>
        <source>name a file of your own</source>
        <translation>wybrać własny plik</translation>
    </message>
    <message>
        <source>cannot be written there: %1</source>
        <translation>nie można tam niczego zapisać: %1</translation>
    </message>
    <message>
        <source>choose a folder of your own</source>
        <translation>wybrać własny katalog</translation>
    </message>
    <message>
        <source>is one of the input files</source>
        <translation>to jeden z plików wejściowych</translation>
    </message>
    <message>
        <source>choose another name for the result</source>
        <translation>wybrać inną nazwę dla wyniku</translation>
    </message>
    <message>
        <source>given twice</source>
        <translation>wybrano dwa razy</translation>
    </message>
    <message>
        <source>name each photo once</source>
        <translation>wybrać każde zdjęcie tylko raz</translation>
    </message>
    <message>
        <source>no such photo</source>
        <translation>nie ma takiego zdjęcia</translation>
    </message>
    <message>
        <source>rename the file: its name is not in UTF-8</source>
        <translation>zmienić nazwę pliku: nie jest zapisana w UTF-8</translation>
    </message>
    <message>
        <source>name the photos in it, e.g. %1/*.jpg</source>
        <translation>wybrać zdjęcia w tym katalogu, np. %1/*.jpg</translation>
    </message>
    <message>
        <source>name photos only</source>
        <translation>wybrać tylko zdjęcia</translation>
    </message>
    <message>
        <source>cannot be read: permission denied</source>
        <translation>nieczytelne: brak uprawnień</translation>
    </message>
    <message>
        <source>copy it to a folder of your own</source>
        <translation>skopiować do własnego katalogu</translation>
    </message>
    <message>
        <source>are photos missing, or did the shoot stop early?</source>
        <translation>czy brakuje zdjęć albo sesja skończyła się za wcześnie?</translation>
    </message>
    <message>
        <source>are test shots among the photos?</source>
        <translation>czy wśród zdjęć są ujęcia próbne?</translation>
    </message>
    <message>
        <source>records %1, %2 given</source>
        <translation>zawiera %1, a wybrano %2</translation>
    </message>
    <message>
        <source>has no capture time to order by</source>
        <translation>brak czasu wykonania, według którego można uporządkować</translation>
    </message>
    <message>
        <source>use --order name or --order given</source>
        <translation>uporządkować według nazw</translation>
    </message>
    <message>
        <source>the record</source>
        <translation>w pliku sesji</translation>
    </message>
    <message>
        <source>the photos&apos; EXIF data</source>
        <translation>w danych EXIF zdjęć</translation>
    </message>
    <message>
        <source>the photos&apos; EXIF data or the record</source>
        <translation>w danych EXIF zdjęć ani w pliku sesji</translation>
    </message>
    <message>
        <source>focal length</source>
        <translation>ogniskowa</translation>
    </message>
    <message>
        <source>not known from %1</source>
        <translation>nie ma jej %1</translation>
    </message>
    <message>
        <source>give it with --focal MM (35 mm equivalent)</source>
        <translation>wrócić i ją wpisać (w przeliczeniu na film 35 mm)</translation>
    </message>
    <message>
        <source>focal length %1 (EXIF) against %2 (record); using EXIF; choose with --focal</source>
        <translation>ogniskowa %1 (EXIF), a w pliku sesji %2 (używana jest wartość z EXIF)</translation>
    </message>
    <message>
        <source>%1 of the photos name no focal length; using that of the others; choose with --focal</source>
        <translation>zdjęcia bez podanej ogniskowej: %1; używana jest ogniskowa pozostałych</translation>
    </message>
    <message>
        <source>%1 lens (EXIF) against %2 (record); using EXIF; choose with --lens</source>
        <translation>obiektyw: %1 (EXIF), a w pliku sesji %2 (używana jest wartość z EXIF)</translation>
    </message>
    <message>
        <source>the photos name focal lengths from %1 to %2; using their median; choose with --focal</source>
        <translation>zdjęcia podają ogniskowe od %1 do %2; używana jest wartość środkowa</translation>
    </message>
    <message>
        <source>plug-in page</source>
        <translation>strona wtyczki</translation>
    </message>
    <message>
        <source>has no &apos;%1&apos;</source>
        <translation>brak elementu „%1”</translation>
    </message>
    <message>
        <source>is this library of another version? set --plugin</source>
        <translation>czy ta biblioteka jest z innej wersji?</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3</source>
        <translation>%1 nie mieści się między %2 a %3</translation>
    </message>
    <message>
        <source>its photo button opens no file dialog</source>
        <translation>przycisk zdjęć nie otwiera okna wyboru plików</translation>
    </message>
    <message>
        <source> (and %1 more of %2 photos)</source>
        <translation> (i jeszcze %1 z %2 zdjęć)</translation>
    </message>
    <message>
        <source>cannot read (%1)%2</source>
        <translation>nieczytelne (%1)%2</translation>
    </message>
    <message>
        <source>is it a photo? try &apos;panohost check&apos;</source>
        <translation>czy to zdjęcie?</translation>
    </message>
    <message>
        <source>the page does not accept them</source>
        <translation>strona ich nie przyjmuje</translation>
    </message>
    <message>
        <source>try &apos;panohost check&apos;</source>
        <translation>sprawdzić zdjęcia</translation>
    </message>
    <message>
        <source>refused by the plug-in</source>
        <translation>wtyczka odrzuciła</translation>
    </message>
    <message>
        <source>temporary links to the photos</source>
        <translation>tymczasowe dowiązania do zdjęć</translation>
    </message>
    <message>
        <source>is the temporary folder full? set TMPDIR</source>
        <translation>czy katalog tymczasowy jest pełny? ustawić TMPDIR na inny</translation>
    </message>
    <message>
        <source>of no shot</source>
        <translation>żadne z ujęć</translation>
    </message>
    <message>
        <source>shot %1</source>
        <translation>ujęcie %1</translation>
    </message>
    <message>
        <source>: %1 may be %2 (%3 %) or %4</source>
        <translation>: %1 to może być %2 (%3 %) albo %4</translation>
    </message>
    <message>
        <source>which photo belongs to which shot cannot be told surely%1; take photos of other shoots away, or say the order with --order name, time or given</source>
        <translation>nie da się ustalić na pewno, które zdjęcie należy do którego ujęcia%1; usunąć zdjęcia z innych sesji</translation>
    </message>
    <message>
        <source>%1 for shot %2</source>
        <translation>%1 dla ujęcia %2</translation>
    </message>
    <message>
        <source>the camera took several photos for each shot: the last one of each is used</source>
        <translation>aparat wykonał po kilka zdjęć na ujęcie: używane jest ostatnie z każdej grupy</translation>
    </message>
    <message>
        <source>taken more than once; used: %1</source>
        <translation>wykonane więcej niż raz; użyte: %1</translation>
    </message>
    <message>
        <source>the camera&apos;s counter began again among these photos: they are ordered by time</source>
        <translation>licznik aparatu zaczął wśród tych zdjęć od nowa: są uporządkowane według czasu</translation>
    </message>
    <message>
        <source>photo numbers begin again (another card?): they are ordered by time</source>
        <translation>numery zdjęć zaczynają się od nowa (inna karta?): zdjęcia są uporządkowane według czasu</translation>
    </message>
    <message>
        <source>names and times disagree: photos are ordered by time</source>
        <translation>nazwy i czasy się nie zgadzają: zdjęcia są uporządkowane według czasu</translation>
    </message>
    <message>
        <source>no photo for %1%2</source>
        <translation>brak zdjęcia: %1%2</translation>
    </message>
    <message>
        <source> (was the shoot stopped?)</source>
        <translation> (czy sesję przerwano?)</translation>
    </message>
    <message>
        <source>take them again if you can</source>
        <translation>jeśli to możliwe, powtórzyć te ujęcia</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 godzinę</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>the camera&apos;s clock is %1 ahead of the head&apos;s</source>
        <translation>zegar aparatu spieszy się względem zegara głowicy o %1</translation>
    </message>
    <message>
        <source>the camera&apos;s clock is %1 behind the head&apos;s</source>
        <translation>zegar aparatu spóźnia się względem zegara głowicy o %1</translation>
    </message>
    <message>
        <source>the camera&apos;s clock gains %1 s in a minute</source>
        <translation>zegar aparatu spieszy się o %1 s na minutę</translation>
    </message>
    <message>
        <source>the camera&apos;s clock loses %1 s in a minute</source>
        <translation>zegar aparatu spóźnia się o %1 s na minutę</translation>
    </message>
    <message>
        <source>the same picture: %1</source>
        <translation>to samo zdjęcie: %1</translation>
    </message>
    <message>
        <source>before the first shot (a test?): left out</source>
        <translation>przed pierwszym ujęciem (próba?): pominięto</translation>
    </message>
    <message>
        <source>of another size: left out</source>
        <translation>inny rozmiar: pominięto</translation>
    </message>
    <message>
        <source>not of this shoot: left out</source>
        <translation>nie z tej sesji: pominięto</translation>
    </message>
    <message>
        <source>which photo belongs to which shot could not be checked (%1): they are taken in the order of their names</source>
        <translation>nie udało się sprawdzić, które zdjęcie należy do którego ujęcia (%1): przyjęto kolejność nazw</translation>
    </message>
    <message>
        <source>names, times and counts</source>
        <translation>nazwy, czasy i liczba</translation>
    </message>
    <message>
        <source>names and counts</source>
        <translation>nazwy i liczba</translation>
    </message>
    <message>
        <source>the record tells no times</source>
        <translation>plik sesji nie podaje czasów</translation>
    </message>
    <message>
        <source>the photos tell no times</source>
        <translation>zdjęcia nie podają czasów</translation>
    </message>
    <message>
        <source>the times of photos and record do not agree</source>
        <translation>czasy zdjęć i pliku sesji się nie zgadzają</translation>
    </message>
    <message>
        <source>%1 left out: other files of the same photos are used, JPEG before RAW</source>
        <translation>pominięto %1: użyto innych plików tych samych zdjęć, najpierw JPEG, potem RAW</translation>
    </message>
    <message>
        <source>not opened: %1 agree</source>
        <translation>nie otwierano: zgadzają się %1</translation>
    </message>
    <message>
        <source>the grid</source>
        <translation>siatka</translation>
    </message>
    <message>
        <source>none of its shots has a photo</source>
        <translation>żadne z jej ujęć nie ma zdjęcia</translation>
    </message>
    <message>
        <source>are these the photos of this shoot?</source>
        <translation>czy to zdjęcia z tej sesji?</translation>
    </message>
    <message>
        <source>was made of other photos</source>
        <translation>utworzone z innych zdjęć</translation>
    </message>
    <message>
        <source>%1 between %2</source>
        <translation>%2, między nimi %1</translation>
    </message>
    <message>
        <source>; %1 without a neighbour near enough</source>
        <translation>; %1 bez dość bliskiego sąsiada</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1–%2</translation>
    </message>
    <message>
        <source>shots %1</source>
        <translation>ujęcia %1</translation>
    </message>
    <message>
        <source>, exposure %1 of %2</source>
        <translation>, ekspozycja %1 z %2</translation>
    </message>
    <message>
        <source>no photo for shot %1 (yaw %2, pitch %3%4)</source>
        <translation>brak zdjęcia dla ujęcia %1 (odchylenie %2, pochylenie %3%4)</translation>
    </message>
    <message>
        <source>no photo for %1</source>
        <translation>brak zdjęcia: %1</translation>
    </message>
    <message>
        <source>panorama of %1 x %2 pixels: takes about %3 in %4 (%5 are free) and %6 of memory</source>
        <translation>panorama %1 x %2 pikseli: zajmie około %3 w %4 (wolne: %5) i %6 pamięci</translation>
    </message>
    <message>
        <source>the light is exact to a fraction of a percent, but where every exposure clips it or shows noise</source>
        <translation>wartości światła są dokładne co do ułamka procenta, poza miejscami, które na każdej ekspozycji są przepalone lub zaszumione</translation>
    </message>
    <message>
        <source>the light is good for looking at, not for measuring: the photos&apos; curve is taken for sRGB&apos;s; RAW files, or TIFFs without a curve and --linear, make it exact</source>
        <translation>wartości światła nadają się do oglądania, nie do pomiarów: przyjęto, że krzywa tonalna zdjęć to krzywa sRGB; pliki RAW dają dokładne wartości</translation>
    </message>
    <message>
        <source>is to hold what is kept of this panorama, and holds something else</source>
        <translation>tu mają trafić pliki robocze tej panoramy, a jest tam coś innego</translation>
    </message>
    <message>
        <source>rename it, or choose another name with -o</source>
        <translation>zmienić jego nazwę lub wybrać inną</translation>
    </message>
    <message>
        <source>the project asks for another projection; the panorama becomes equirectangular</source>
        <translation>projekt wymaga innej projekcji; panorama będzie równoprostokątna</translation>
    </message>
    <message>
        <source>masks that include a region are passed over, only those that exclude one count</source>
        <translation>maski włączające obszar są pomijane, liczą się tylko wykluczające</translation>
    </message>
    <message>
        <source>--centre turns full turns only; this part of the sphere stays as it is</source>
        <translation>obrócić można tylko panoramę dookólną; ta część sfery zostaje bez zmian</translation>
    </message>
    <message>
        <source>%1: cannot be read to its end; copy it from the card again, or take it again</source>
        <translation>%1: nie da się odczytać do końca; skopiować jeszcze raz z karty lub powtórzyć ujęcie</translation>
    </message>
    <message>
        <source>%1 of them are RAW files</source>
        <translation>pliki RAW wśród nich: %1</translation>
    </message>
    <message>
        <source>add --raw-converter dcraw, dcraw_emu, darktable-cli or rawtherapee-cli, or give JPEGs or TIFFs of them</source>
        <translation>zainstalować dcraw, dcraw_emu, darktable-cli lub rawtherapee-cli albo użyć plików JPEG lub TIFF tych zdjęć</translation>
    </message>
    <message>
        <source>photos stay where the head says: optimisation is skipped</source>
        <translation>zdjęcia zostają tam, gdzie wskazała głowica: optymalizacja pominięta</translation>
    </message>
    <message>
        <source>what was finished is kept in %1: the same command goes on from there</source>
        <translation>to, co gotowe, zostało zachowane w %1: „Utwórz panoramę” kontynuuje od tego miejsca</translation>
    </message>
    <message>
        <source>photos lie where the record puts them in these commands: nothing is aligned yet</source>
        <translation>zdjęcia leżą tu jeszcze tam, gdzie umieścił je plik sesji: niczego nie wyrównano</translation>
    </message>
    <message>
        <source>a Hugin project cannot hold a file name with quotation marks or line ends, and no link to it can be made in %1</source>
        <translation>projekt Hugin nie może zawierać nazw plików z cudzysłowem lub znakiem końca wiersza, a w %1 nie można utworzyć dowiązania do takiego pliku</translation>
    </message>
    <message>
        <source>rename the file</source>
        <translation>zmienić nazwę pliku</translation>
    </message>
    <message>
        <source>name dcraw, dcraw_emu, darktable-cli or rawtherapee-cli, or a command with %i for the RAW file and %o for the TIFF</source>
        <translation>podać dcraw, dcraw_emu, darktable-cli lub rawtherapee-cli albo polecenie z %i dla pliku RAW i %o dla TIFF</translation>
    </message>
    <message>
        <source>this RAW converter was not found</source>
        <translation>nie znaleziono tego konwertera RAW</translation>
    </message>
    <message>
        <source>is its name right? of those known: apt install dcraw, libraw-bin, darktable or rawtherapee</source>
        <translation>czy nazwa jest prawidłowa? ze znanych: apt install dcraw, libraw-bin, darktable lub rawtherapee</translation>
    </message>
    <message>
        <source>the camera chose the white balance of %1 RAW files one by one, and %2 follows it: their colours may differ; dcraw takes the first one&apos;s for all</source>
        <translation>aparat dobrał balans bieli osobno dla każdego z plików RAW (%1), a %2 się go trzyma: kolory mogą się różnić; dcraw stosuje do wszystkich balans pierwszego</translation>
    </message>
    <message>
        <source>this copy of a photo cannot be made</source>
        <translation>nie można utworzyć tej kopii zdjęcia</translation>
    </message>
    <message>
        <source>is the photo readable? is the disk full?</source>
        <translation>czy zdjęcie jest czytelne? czy dysk jest pełny?</translation>
    </message>
    <message>
        <source>, of %1</source>
        <translation>, plik %1</translation>
    </message>
    <message>
        <source>it left no whole picture of %1</source>
        <translation>nie powstał pełny obraz z %1</translation>
    </message>
    <message>
        <source>can it read this camera&apos;s files? is the disk full?</source>
        <translation>czy obsługuje pliki tego aparatu? czy dysk jest pełny?</translation>
    </message>
    <message>
        <source>names no program</source>
        <translation>nie podaje żadnego programu</translation>
    </message>
    <message>
        <source>does not say where its files go</source>
        <translation>nie mówi, dokąd trafiają pliki</translation>
    </message>
    <message>
        <source>row %1 of column %2</source>
        <translation>wiersz %1 w kolumnie %2</translation>
    </message>
    <message>
        <source>the grid reaches around the sphere: overlap or rows do not fit this lens</source>
        <translation>siatka wykracza poza obwód sfery: nakładanie lub liczba wierszy nie pasuje do tego obiektywu</translation>
    </message>
    <message numerus="yes">
        <source>%n column</source>
        <translation>
            <numerusform>%n kolumna</numerusform>
            <numerusform>%n kolumny</numerusform>
            <numerusform>%n kolumn</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file</source>
        <translation>
            <numerusform>%n plik</numerusform>
            <numerusform>%n pliki</numerusform>
            <numerusform>%n plików</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link</source>
        <translation>
            <numerusform>%n połączenie</numerusform>
            <numerusform>%n połączenia</numerusform>
            <numerusform>%n połączeń</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo</source>
        <translation>
            <numerusform>%n zdjęcie</numerusform>
            <numerusform>%n zdjęcia</numerusform>
            <numerusform>%n zdjęć</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n position</source>
        <translation>
            <numerusform>%n pozycja</numerusform>
            <numerusform>%n pozycje</numerusform>
            <numerusform>%n pozycji</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row</source>
        <translation>
            <numerusform>%n wiersz</numerusform>
            <numerusform>%n wiersze</numerusform>
            <numerusform>%n wierszy</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shot</source>
        <translation>
            <numerusform>%n ujęcie</numerusform>
            <numerusform>%n ujęcia</numerusform>
            <numerusform>%n ujęć</numerusform>
        </translation>
    </message>
    <message>
        <source>the description</source>
        <translation>opis</translation>
    </message>
    <message>
        <source>%1 recorded directions for %2 photos at %3 positions</source>
        <translation>zapisane kierunki: %1, zdjęcia: %2, pozycje: %3</translation>
    </message>
    <message>
        <source>its direction is not a number</source>
        <translation>kierunek nie jest liczbą</translation>
    </message>
    <message>
        <source>correct the record</source>
        <translation>poprawić plik sesji</translation>
    </message>
    <message>
        <source>position %1</source>
        <translation>pozycja %1</translation>
    </message>
    <message>
        <source>has no photo</source>
        <translation>brak zdjęcia</translation>
    </message>
    <message>
        <source>holds no photos</source>
        <translation>nie zawiera zdjęć</translation>
    </message>
    <message>
        <source>name a file that &apos;panohost import --json&apos; has written</source>
        <translation>wybrać opis zapisany przez ten program</translation>
    </message>
    <message>
        <source>cannot read (not a photo?)</source>
        <translation>nieczytelne (czy to zdjęcie?)</translation>
    </message>
    <message>
        <source>its pixels cannot be decoded (a RAW file?)</source>
        <translation>nie można odczytać pikseli (plik RAW?)</translation>
    </message>
    <message>
        <source>too large to decode</source>
        <translation>za duże, by je odczytać</translation>
    </message>
    <message>
        <source>give it with --focal</source>
        <translation>wrócić i ją wpisać</translation>
    </message>
    <message>
        <source>neither the record nor the photos name it</source>
        <translation>nie podają jej ani plik sesji, ani zdjęcia</translation>
    </message>
    <message>
        <source>no lens has %1 mm</source>
        <translation>żaden obiektyw nie ma %1 mm</translation>
    </message>
    <message>
        <source>its size in pixels is not known</source>
        <translation>rozmiar w pikselach nie jest znany</translation>
    </message>
    <message>
        <source>can another program open it? leave it out if not</source>
        <translation>czy inny program to otwiera? jeśli nie, pominąć</translation>
    </message>
    <message>
        <source>the photos have %1 different sizes in pixels</source>
        <translation>zdjęcia mają różne rozmiary w pikselach (%1)</translation>
    </message>
    <message>
        <source>a Hugin project cannot hold a file name with quotation marks or line ends</source>
        <translation>projekt Hugin nie może zawierać nazw plików z cudzysłowem lub znakiem końca wiersza</translation>
    </message>
    <message>
        <source>%1 of %2 photos name no exposure; %3 is assumed</source>
        <translation>zdjęcia bez podanej ekspozycji: %1 z %2; przyjęto %3</translation>
    </message>
    <message>
        <source>larger than %1 bytes</source>
        <translation>większe niż %1 B</translation>
    </message>
    <message>
        <source>give the name of a file</source>
        <translation>podać nazwę pliku</translation>
    </message>
    <message>
        <source>set --plugin or PANOHOST_PLUGIN_PATH to libXPanoHead.so</source>
        <translation>ustawić PANOHOST_PLUGIN_PATH na libXPanoHead.so</translation>
    </message>
    <message>
        <source>no such file or folder</source>
        <translation>nie ma takiego pliku ani katalogu</translation>
    </message>
    <message>
        <source>import plug-ins</source>
        <translation>wtyczki importu</translation>
    </message>
    <message>
        <source>no plug-in library in %1</source>
        <translation>brak biblioteki wtyczek w %1</translation>
    </message>
    <message>
        <source>is not a Qt plug-in library</source>
        <translation>to nie jest biblioteka wtyczek Qt</translation>
    </message>
    <message>
        <source>its interface is &apos;%1&apos;, &apos;%2&apos; is needed</source>
        <translation>interfejs to „%1”, a potrzebny jest „%2”</translation>
    </message>
    <message>
        <source>offers no list of plug-ins</source>
        <translation>nie podaje listy wtyczek</translation>
    </message>
    <message>
        <source>holds no import plug-in</source>
        <translation>nie zawiera wtyczki importu</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>nie można zapisać</translation>
    </message>
    <message>
        <source>is of another size than the others of its bracket</source>
        <translation>ma inny rozmiar niż pozostałe z tej serii</translation>
    </message>
    <message>
        <source>is no warped light</source>
        <translation>nie zawiera przekształconych wartości światła</translation>
    </message>
    <message>
        <source>these photos of the project, and %1 more, are not there any more</source>
        <translation>tych zdjęć z projektu i jeszcze %1 już nie ma</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>już nie istnieje</translation>
    </message>
    <message>
        <source>put the photos back where they were, or import them again</source>
        <translation>przywrócić zdjęcia na poprzednie miejsce lub zaimportować je ponownie</translation>
    </message>
    <message>
        <source>%1 has %2 bits a colour, %3 has %4, and all must be alike to be blended</source>
        <translation>%1 ma %2 bitów na kolor, a %3 ma %4; do połączenia wszystkie muszą być jednakowe</translation>
    </message>
    <message>
        <source>convert or develop them alike</source>
        <translation>przekonwertować lub wywołać je jednakowo</translation>
    </message>
    <message>
        <source>was not written to its end</source>
        <translation>nie zapisano do końca</translation>
    </message>
    <message>
        <source>is there enough room in %1?</source>
        <translation>czy w %1 jest dość miejsca?</translation>
    </message>
    <message>
        <source>nona, of %1</source>
        <translation>nona, plik %1</translation>
    </message>
    <message>
        <source>made no picture of %1</source>
        <translation>nie powstał obraz z %1</translation>
    </message>
    <message>
        <source>is it a photo that other programs open?</source>
        <translation>czy to zdjęcie otwiera się w innych programach?</translation>
    </message>
    <message>
        <source>size of the panorama</source>
        <translation>rozmiar panoramy</translation>
    </message>
    <message>
        <source>%1 x %2 pixels cannot be made</source>
        <translation>nie można utworzyć %1 x %2 pikseli</translation>
    </message>
    <message>
        <source>choose another --size</source>
        <translation>wybrać inny rozmiar</translation>
    </message>
    <message>
        <source>the stitch needs %1 there, %2 are free</source>
        <translation>panorama wymaga tam %1, wolne: %2</translation>
    </message>
    <message>
        <source>make room, name another place with -o, or choose a smaller --size</source>
        <translation>zwolnić miejsce, wybrać inne miejsce lub mniejszy rozmiar</translation>
    </message>
    <message>
        <source>memory</source>
        <translation>pamięć</translation>
    </message>
    <message>
        <source>the stitch needs about %1, %2 are available</source>
        <translation>panorama wymaga około %1, dostępne: %2</translation>
    </message>
    <message>
        <source>close other programs, or choose --jobs 1 or a smaller --size</source>
        <translation>zamknąć inne programy lub wybrać mniejszy rozmiar</translation>
    </message>
    <message>
        <source>try it by itself</source>
        <translation>wypróbować ten program osobno</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>it was killed, perhaps because memory ran out</source>
        <translation>program zakończono, być może zabrakło pamięci</translation>
    </message>
    <message>
        <source>close other programs and try again</source>
        <translation>zamknąć inne programy i spróbować ponownie</translation>
    </message>
    <message>
        <source>it crashed (signal %1)</source>
        <translation>awaria programu (sygnał %1)</translation>
    </message>
    <message>
        <source>%1 and said: %2</source>
        <translation>%1, komunikat: %2</translation>
    </message>
    <message>
        <source> if so: %1</source>
        <translation> jeśli tak: %1</translation>
    </message>
    <message>
        <source>this program is needed for stitching and was not found</source>
        <translation>ten program jest potrzebny do składania panoramy, a go nie znaleziono</translation>
    </message>
    <message>
        <source>cannot be started (%1)</source>
        <translation>nie można uruchomić (%1)</translation>
    </message>
    <message>
        <source>it was stopped since it did nothing for %1</source>
        <translation>zatrzymano, bo program nic nie robił przez %1</translation>
    </message>
    <message>
        <source>is the machine very busy, or a network drive away? try again</source>
        <translation>czy komputer jest mocno obciążony albo dysk sieciowy niedostępny? spróbować ponownie</translation>
    </message>
    <message>
        <source>it failed without a message</source>
        <translation>błąd bez komunikatu</translation>
    </message>
    <message>
        <source>it failed and said: %1</source>
        <translation>błąd, komunikat: %1</translation>
    </message>
    <message>
        <source>is the disk full, or a file damaged that it reads?</source>
        <translation>czy dysk jest pełny albo któryś z odczytywanych plików uszkodzony?</translation>
    </message>
    <message>
        <source>it failed, and there is hardly any room left on the disk at %1 (%2)</source>
        <translation>błąd, a na dysku %1 prawie nie ma już miejsca (%2)</translation>
    </message>
    <message>
        <source>make room there and go on with the same command; nothing is lost</source>
        <translation>zwolnić tam miejsce i ponownie nacisnąć „Utwórz panoramę”; nic nie przepadnie</translation>
    </message>
    <message>
        <source>was the disk full? remove the file and try again</source>
        <translation>czy dysk był pełny? usunąć plik i spróbować ponownie</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nieczytelne</translation>
    </message>
    <message>
        <source>is no picture of 8, 16 or floating bits</source>
        <translation>to nie jest obraz 8-bitowy, 16-bitowy ani zmiennoprzecinkowy</translation>
    </message>
    <message>
        <source>is cut off</source>
        <translation>plik jest ucięty</translation>
    </message>
    <message>
        <source>cannot be mapped into memory</source>
        <translation>nie można odwzorować w pamięci</translation>
    </message>
    <message>
        <source>is the disk full, or the folder read-only?</source>
        <translation>czy dysk jest pełny albo katalog tylko do odczytu?</translation>
    </message>
    <message>
        <source>%1, process %2 on %3</source>
        <translation>program %1 (proces %2 na %3)</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>inny program</translation>
    </message>
    <message>
        <source>there is a file of that name: rename it, or choose another name with -o</source>
        <translation>istnieje plik o tej nazwie: zmienić jego nazwę lub wybrać inną</translation>
    </message>
    <message>
        <source>is in use by %1</source>
        <translation>używa go %1</translation>
    </message>
    <message>
        <source>wait for it to end, or choose another name with -o</source>
        <translation>poczekać, aż skończy, lub wybrać inną nazwę</translation>
    </message>
</context>
<context>
    <name>PanoHost::SavedList</name>
    <message>
        <source>Nothing saved yet.</source>
        <translation>Niczego jeszcze nie zapisano.</translation>
    </message>
    <message>
        <source>Saved files</source>
        <translation>Zapisane pliki</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>Nie wykonano</translation>
    </message>
    <message>
        <source>Saved %1 in %2</source>
        <translation>Zapisano %1 w %2</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Pokaż</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>Pokaż %1 w katalogu</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Zapisano</translation>
    </message>
    <message>
        <source>The folder %1 is not there any more. Was it moved, or its disk unplugged?</source>
        <translation>Katalogu %1 już nie ma. Może go przeniesiono lub odłączono jego dysk?</translation>
    </message>
    <message>
        <source>No program could show the folder. It is %1</source>
        <translation>Żaden program nie mógł pokazać katalogu. To %1</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootDesk</name>
    <message>
        <source>shot %1: yaw %2, pitch %3</source>
        <translation>ujęcie %1: odchylenie %2, pochylenie %3</translation>
    </message>
    <message>
        <source>The photos do not stand at their shots: go back, and press Fix.</source>
        <translation>Zdjęcia nie są przypisane do swoich ujęć: wróć i naciśnij „Napraw”.</translation>
    </message>
    <message>
        <source>Another file in place of %1</source>
        <translation>Inny plik zamiast %1</translation>
    </message>
    <message>
        <source>Shots without a photo</source>
        <translation>Ujęcia bez zdjęcia</translation>
    </message>
    <message>
        <source>Take these shots again if you can. The panorama is made without them otherwise.</source>
        <translation>Jeśli to możliwe, powtórz te ujęcia. W przeciwnym razie panorama powstanie bez nich.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootPanel</name>
    <message>
        <source>Flat</source>
        <translation>Płasko</translation>
    </message>
    <message>
        <source>Show the photos on a map</source>
        <translation>Pokaż zdjęcia na mapie</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>Sfera</translation>
    </message>
    <message>
        <source>Look around from where the camera stood</source>
        <translation>Rozejrzyj się z miejsca, w którym stał aparat</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Połączenia</translation>
    </message>
    <message>
        <source>Show which photos are linked to each other</source>
        <translation>Pokaż, które zdjęcia są ze sobą połączone</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Luki</translation>
    </message>
    <message>
        <source>Hatch what no photo shows</source>
        <translation>Zakreskuj to, czego nie pokazuje żadne zdjęcie</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Dopasuj</translation>
    </message>
    <message>
        <source>Show the whole shoot</source>
        <translation>Pokaż całą sesję</translation>
    </message>
    <message>
        <source>The focal length is not known: photos are drawn as by 50 mm</source>
        <translation>Ogniskowa nie jest znana: zdjęcia narysowano jak dla 50 mm</translation>
    </message>
    <message>
        <source>No gaps</source>
        <translation>Brak luk</translation>
    </message>
    <message>
        <source>Linked to no other photo: %1</source>
        <translation>Niepołączone z żadnym innym zdjęciem: %1</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootStrip</name>
    <message>
        <source>To look at</source>
        <translation>Do sprawdzenia</translation>
    </message>
    <message>
        <source>Not yet known</source>
        <translation>Jeszcze nie wiadomo</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>W porządku</translation>
    </message>
    <message>
        <source>About this shoot</source>
        <translation>O tej sesji</translation>
    </message>
    <message>
        <source>Show what is known about this shoot</source>
        <translation>Pokaż, co wiadomo o tej sesji</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Focal length, as for 35 mm film</source>
        <translation>Ogniskowa w przeliczeniu na film 35 mm</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootView</name>
    <message>
        <source>Picture of the shoot: %1, %2</source>
        <translation>Obraz sesji: %1, %2</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 zdjęcie</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>zdjęcia: %1</translation>
    </message>
    <message>
        <source>1 position</source>
        <translation>1 pozycja</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>pozycje: %1</translation>
    </message>
    <message>
        <source>position %1 of %2</source>
        <translation>pozycja %1 z %2</translation>
    </message>
    <message>
        <source>shot %1 of %2</source>
        <translation>ujęcie %1 z %2</translation>
    </message>
    <message>
        <source>first of %1 photos here</source>
        <translation>pierwsze z %1 zdjęć w tym miejscu</translation>
    </message>
    <message>
        <source>off by %1 pixels</source>
        <translation>błąd %1 piksela</translation>
    </message>
    <message>
        <source>no control points</source>
        <translation>brak punktów kontrolnych</translation>
    </message>
    <message>
        <source>linked to no other photo</source>
        <translation>niepołączone z żadnym innym zdjęciem</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nieczytelne</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Off by, pixels</source>
        <translation>Błąd, piksele</translation>
    </message>
</context>
<context>
    <name>PanoHost::StripTexts</name>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>waits for the head&apos;s record</source>
        <translation>czeka na plik sesji głowicy</translation>
    </message>
    <message>
        <source>waits for another record: this one is of %1</source>
        <translation>czeka na inny plik sesji: ten pochodzi z %1</translation>
    </message>
    <message>
        <source>waits for a record that can be read</source>
        <translation>czeka na czytelny plik sesji</translation>
    </message>
    <message>
        <source>waits for the photos</source>
        <translation>czeka na zdjęcia</translation>
    </message>
    <message>
        <source>waits until the photos have been read</source>
        <translation>czeka na odczytanie zdjęć</translation>
    </message>
    <message>
        <source>waits: the photos do not stand at their shots</source>
        <translation>czeka: zdjęcia nie są przypisane do swoich ujęć</translation>
    </message>
    <message>
        <source>waits: %1 for %2</source>
        <translation>czeka: %1, %2</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 zdjęcie</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>zdjęcia – %1</translation>
    </message>
    <message>
        <source>1 shot</source>
        <translation>1 ujęcie</translation>
    </message>
    <message>
        <source>%1 shots</source>
        <translation>ujęcia – %1</translation>
    </message>
    <message>
        <source>waits: not all photos can be used</source>
        <translation>czeka: nie wszystkie zdjęcia nadają się do użycia</translation>
    </message>
    <message>
        <source>waits: %1</source>
        <translation>czeka: %1</translation>
    </message>
    <message>
        <source>waits: the page does not accept these photos</source>
        <translation>czeka: strona nie przyjmuje tych zdjęć</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Plik sesji</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Siatka</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Zdjęcia</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>nie nadają się do użycia (%1): %2</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Kolejność</translation>
    </message>
    <message>
        <source>each photo stands at its shot</source>
        <translation>każde zdjęcie jest przypisane do swojego ujęcia</translation>
    </message>
    <message>
        <source>the photos do not stand at their shots</source>
        <translation>zdjęcia nie są przypisane do swoich ujęć</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Ogniskowa</translation>
    </message>
    <message>
        <source>%1, as the last time with such photos</source>
        <translation>%1, jak ostatnio przy takich zdjęciach</translation>
    </message>
    <message>
        <source>%1, as entered</source>
        <translation>%1, jak wpisano</translation>
    </message>
    <message>
        <source>%1, from the record: the photos name none</source>
        <translation>%1, z pliku sesji: zdjęcia jej nie podają</translation>
    </message>
    <message>
        <source>no photo names it: enter it, as for 35 mm film</source>
        <translation>żadne zdjęcie jej nie podaje: wpisz ją w przeliczeniu na film 35 mm</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Brakujące</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Przerwy</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Połączenia</translation>
    </message>
    <message>
        <source>other records: %1</source>
        <translation>inne pliki sesji: %1</translation>
    </message>
    <message>
        <source>results of this program: %1</source>
        <translation>wyniki tego programu: %1</translation>
    </message>
    <message>
        <source>Not taken</source>
        <translation>Nie przyjęto</translation>
    </message>
    <message>
        <source>1 thing to look at</source>
        <translation>Do sprawdzenia: 1</translation>
    </message>
    <message>
        <source>%1 things to look at</source>
        <translation>Do sprawdzenia: %1</translation>
    </message>
    <message>
        <source>Looking at the photos...</source>
        <translation>Sprawdzanie zdjęć...</translation>
    </message>
    <message>
        <source>Everything agrees</source>
        <translation>Wszystko się zgadza</translation>
    </message>
    <message>
        <source>Choose record...</source>
        <translation>Wybierz plik sesji...</translation>
    </message>
    <message>
        <source>Choose photos...</source>
        <translation>Wybierz zdjęcia...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Replace...</source>
        <translation>Zastąp...</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Napraw</translation>
    </message>
    <message>
        <source>Switch head</source>
        <translation>Zmień głowicę</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Wpisz</translation>
    </message>
    <message>
        <source>Show shots...</source>
        <translation>Pokaż ujęcia...</translation>
    </message>
</context>
</TS>
