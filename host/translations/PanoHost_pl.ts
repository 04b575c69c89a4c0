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
        <source>or choose a smaller size</source>
        <translation>lub wybrać mniejszy rozmiar</translation>
    </message>
    <message>
        <source>choose a smaller size</source>
        <translation>wybrać mniejszy rozmiar</translation>
    </message>
    <message>
        <source>choose another size</source>
        <translation>wybrać inny rozmiar</translation>
    </message>
    <message>
        <source>RAW files make it exact</source>
        <translation>pliki RAW dają dokładne wartości</translation>
    </message>
    <message>
        <source>press Make panorama again</source>
        <translation>ponownie nacisnąć „Utwórz panoramę”</translation>
    </message>
    <message>
        <source>go back and enter it</source>
        <translation>wrócić i ją wpisać</translation>
    </message>
    <message>
        <source>Make panorama goes on from here</source>
        <translation>„Utwórz panoramę” kontynuuje od tego miejsca</translation>
    </message>
    <message>
        <source>%1 x %2 pixels at most; takes up to %3 of the disk and %4 of memory.</source>
        <translation>Najwyżej %1 x %2 pikseli; zajmie do %3 na dysku i %4 pamięci.</translation>
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
    <name>PanoHost::ImportWizard</name>
    <message>
        <source>Import a panorama</source>
        <translation>Import panoramy</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
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
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Ustawienia...</translation>
    </message>
    <message>
        <source>&amp;About panohost</source>
        <translation>&amp;O programie panohost</translation>
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
        <source>Language and thumbnails change with the next start.</source>
        <translation>Zmiana języka i miniatur zadziała po ponownym uruchomieniu.</translation>
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
