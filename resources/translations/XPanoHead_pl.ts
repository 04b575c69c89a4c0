<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>UIWPClauss</name>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Error parse file:%1</source>
        <translation>Błąd odczytu pliku: %1</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>Wybierz plik sesji i/lub zdjęcia</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Wszystkie pliki (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Wybierz zdjęcia</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>n/d</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Ostrzeżenie</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>Za mało pamięci na tak wiele zdjęć. Zamknij inne programy i spróbuj ponownie.</translation>
    </message>
</context>
<context>
    <name>UIWPClaussClass</name>
    <message>
        <source>Clauss panohead</source>
        <translation>Głowica panoramiczna Clauss</translation>
    </message>
    <message>
        <source>Clauss panohead import</source>
        <translation>Import z głowicy panoramicznej Clauss</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://dr-clauss.de&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Clauss&lt;/font&gt;&lt;/a&gt; provides special equipment for panoramic photography and VR applications.</source>
        <translation>&lt;a href=&quot;https://dr-clauss.de&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Clauss&lt;/font&gt;&lt;/a&gt; oferuje specjalny sprzęt do fotografii panoramicznej i zastosowań VR.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Script file:</source>
        <translation>Plik skryptu:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetuj</translation>
    </message>
    <message>
        <source>Number of shoot:</source>
        <translation>Liczba ujęć:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>n/d</translation>
    </message>
    <message>
        <source>Theta:</source>
        <translation>Theta:</translation>
    </message>
    <message>
        <source>Phi:</source>
        <translation>Phi:</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>Odwróć współrzędne Y</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Zdjęcia:</translation>
    </message>
    <message>
        <source>Number of image:</source>
        <translation>Liczba zdjęć:</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Automatyczne wykrywanie</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Usuń błędne połączenia</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Pomiń optymalizację</translation>
    </message>
    <message>
        <source>Guided optimization</source>
        <translation>Optymalizacja kierowana</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Powiększenie</translation>
    </message>
</context>
<context>
    <name>UIWPGigapan</name>
    <message>
        <source>Select images</source>
        <translation>Wybierz zdjęcia</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Wszystkie pliki (*.*)</translation>
    </message>
    <message>
        <source>images in </source>
        <translation>zdj. w </translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Ostrzeżenie</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>Za mało pamięci na tak wiele zdjęć. Zamknij inne programy i spróbuj ponownie.</translation>
    </message>
</context>
<context>
    <name>UIWPGigapanClass</name>
    <message>
        <source>UIWPGigapan</source>
        <translation>UIWPGigapan</translation>
    </message>
    <message>
        <source>Gigapan panorama import</source>
        <translation>Import panoramy Gigapan</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;http://www.gigapan.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Gigapan&lt;/font&gt;&lt;/a&gt; allows users to upload, share, and explore brilliant gigapixel+ panoramas from around the globe.</source>
        <translation>&lt;a href=&quot;http://www.gigapan.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Gigapan&lt;/font&gt;&lt;/a&gt; pozwala przesyłać, udostępniać i oglądać wspaniałe panoramy o rozdzielczości ponad gigapiksela z całego świata.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Images :</source>
        <translation>Zdjęcia:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetuj</translation>
    </message>
    <message>
        <source># Images in</source>
        <translation>Liczba zdjęć w</translation>
    </message>
    <message>
        <source>rows and</source>
        <translation>wierszach i</translation>
    </message>
    <message>
        <source>columns.</source>
        <translation>kolumnach.</translation>
    </message>
    <message>
        <source>Ignore N files </source>
        <translation>Pliki pomijane na początku </translation>
    </message>
    <message>
        <source>Nb image per location ( bracketing )</source>
        <translation>Zdjęcia na pozycję (bracketing)</translation>
    </message>
    <message>
        <source>Shoot layout</source>
        <translation>Układ ujęć</translation>
    </message>
    <message>
        <source>Columns (default)</source>
        <translation>Kolumny (domyślnie)</translation>
    </message>
    <message>
        <source>Columns: to left</source>
        <translation>Kolumny: w lewo</translation>
    </message>
    <message>
        <source>Rows: downward</source>
        <translation>Wiersze: w dół</translation>
    </message>
    <message>
        <source>Rows: upward</source>
        <translation>Wiersze: w górę</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>Ustawienia ujęć</translation>
    </message>
    <message>
        <source>Force 360° panorama</source>
        <translation>Wymuś panoramę 360°</translation>
    </message>
    <message>
        <source>Overlapping</source>
        <translation>Nakładanie się</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Stos</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>Wykrywaj połączenia w:</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>poziomie odniesienia</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>wszystkich poziomach stosu</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>W obrębie stosu:</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>Użyj stałych połączeń</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>Wykryj punkty kontrolne</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>Opcje wykrywania</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Automatyczne wykrywanie</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Usuń błędne połączenia</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Pomiń optymalizację</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Powiększenie</translation>
    </message>
</context>
<context>
    <name>UIWPMerlin</name>
    <message>
        <source>Standard</source>
        <translation>Standardowy</translation>
    </message>
    <message>
        <source>Fisheye</source>
        <translation>Rybie oko</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Ostrzeżenie</translation>
    </message>
    <message>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>Plik XML Papywizard używa bracketingu, a liczba zdjęć nie jest wielokrotnością liczby ekspozycji w serii.</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>Wybierz plik sesji i/lub zdjęcia</translation>
    </message>
    <message>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>Wszystkie pliki (*.*);;Pliki XML (*.xml)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Wszystkie pliki (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Wybierz zdjęcia</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>n/d</translation>
    </message>
    <message>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>W XML użyto bracketingu: liczba zdjęć powinna być wielokrotnością tej liczby</translation>
    </message>
    <message>
        <source>Not the same as in XML fil</source>
        <translation>Niezgodne z plikiem XML</translation>
    </message>
    <message>
        <source>Focal Length difference between EXIF and XML</source>
        <translation>Ogniskowa w EXIF i XML jest różna</translation>
    </message>
    <message>
        <source>Lens type difference between EXIF and XML</source>
        <translation>Typ obiektywu w EXIF i XML jest różny</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>Za mało pamięci na tak wiele zdjęć. Zamknij inne programy i spróbuj ponownie.</translation>
    </message>
</context>
<context>
    <name>UIWPMerlinClass</name>
    <message>
        <source>Papywizard panohead control software</source>
        <translation>Papywizard, program sterujący głowicą panoramiczną</translation>
    </message>
    <message>
        <source>Papywizard import</source>
        <translation>Import Papywizard</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; is a free project to drive Merlin/Orion panorama heads. The XML file format is open and used by a wide range of motorized panorama heads.</source>
        <translation>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; to wolny projekt sterujący głowicami Merlin/Orion. Jego otwarty format XML jest używany przez wiele zmotoryzowanych głowic.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>XML:</source>
        <translation>XML:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetuj</translation>
    </message>
    <message>
        <source>Number of images:</source>
        <translation>Liczba zdjęć:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>n/d</translation>
    </message>
    <message>
        <source>Yaw:</source>
        <translation>Odchylenie:</translation>
    </message>
    <message>
        <source>Pitch:</source>
        <translation>Pochylenie:</translation>
    </message>
    <message>
        <source>Bracketing:</source>
        <translation>Bracketing:</translation>
    </message>
    <message>
        <source>XML focal:</source>
        <translation>Ogniskowa XML:</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Zdjęcia:</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>Ogniskowa zdjęć:</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>Ustawienia ujęć</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>Odwróć współrzędne Y</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Obróć w lewo</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Obróć w prawo</translation>
    </message>
    <message>
        <source>Focal length:</source>
        <translation>Ogniskowa:</translation>
    </message>
    <message>
        <source>Lens Type:</source>
        <translation>Typ obiektywu:</translation>
    </message>
    <message>
        <source>Use XML information</source>
        <translation>Użyj danych z XML</translation>
    </message>
    <message>
        <source>Use image information</source>
        <translation>Użyj danych ze zdjęć</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Stos</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>Wykrywaj połączenia w:</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>poziomie odniesienia</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>wszystkich poziomach stosu</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>W obrębie stosu:</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>Użyj stałych połączeń</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>Wykryj punkty kontrolne</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>Opcje wykrywania</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Automatyczne wykrywanie</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Usuń błędne połączenia</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Pomiń optymalizację</translation>
    </message>
    <message>
        <source>Use recorded location</source>
        <translation>Użyj zapisanych pozycji</translation>
    </message>
    <message>
        <source>Header details</source>
        <translation>Dane nagłówka</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Tytuł:</translation>
    </message>
    <message>
        <source>GPS:</source>
        <translation>GPS:</translation>
    </message>
    <message>
        <source>Comment:</source>
        <translation>Komentarz:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Powiększenie</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2</name>
    <message>
        <source>Standard</source>
        <translation>Standardowy</translation>
    </message>
    <message>
        <source>Fisheye</source>
        <translation>Rybie oko</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Ostrzeżenie</translation>
    </message>
    <message>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>Plik XML Papywizard używa bracketingu, a liczba zdjęć nie jest wielokrotnością liczby ekspozycji w serii.</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>Wybierz plik sesji i/lub zdjęcia</translation>
    </message>
    <message>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>Wszystkie pliki (*.*);;Pliki XML (*.xml)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Wszystkie pliki (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Wybierz zdjęcia</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>n/d</translation>
    </message>
    <message>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>W XML użyto bracketingu: liczba zdjęć powinna być wielokrotnością tej liczby</translation>
    </message>
    <message>
        <source>Not the same as in XML fil</source>
        <translation>Niezgodne z plikiem XML</translation>
    </message>
    <message>
        <source>Focal length difference between EXIF and XML</source>
        <translation>Ogniskowa w EXIF i XML jest różna</translation>
    </message>
    <message>
        <source>Lens type difference between EXIF and XML</source>
        <translation>Typ obiektywu w EXIF i XML jest różny</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>Za mało pamięci na tak wiele zdjęć. Zamknij inne programy i spróbuj ponownie.</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2Class</name>
    <message>
        <source>VR Drive II import plugin</source>
        <translation>Wtyczka importu VR Drive II</translation>
    </message>
    <message>
        <source>VR Drive 2</source>
        <translation>VR Drive 2</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://www.roundshot.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;VR Drive 2&lt;/font&gt;&lt;/a&gt; plug-in enables an automated HDR workflow with all parameters set for true light rendering and easy use of Weavix software.</source>
        <translation>Wtyczka &lt;a href=&quot;https://www.roundshot.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;VR Drive 2&lt;/font&gt;&lt;/a&gt; automatyzuje pracę z HDR: wszystkie parametry dobrano tak, by wiernie oddać światło i ułatwić pracę z Weavix.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Zdjęcia:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Number of images:</source>
        <translation>Liczba zdjęć:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>n/d</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>Ogniskowa zdjęć:</translation>
    </message>
    <message>
        <source>XML:</source>
        <translation>XML:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetuj</translation>
    </message>
    <message>
        <source>Yaw:</source>
        <translation>Odchylenie:</translation>
    </message>
    <message>
        <source>Pitch:</source>
        <translation>Pochylenie:</translation>
    </message>
    <message>
        <source>Bracketing:</source>
        <translation>Bracketing:</translation>
    </message>
    <message>
        <source>XML focal:</source>
        <translation>Ogniskowa XML:</translation>
    </message>
    <message>
        <source>Output:</source>
        <translation>Wynik:</translation>
    </message>
    <message>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8-bitowy / 16-bitowy z mapowaniem tonów</translation>
    </message>
    <message>
        <source>32-bits HDR radiance</source>
        <translation>32-bitowy HDR (radiancja)</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>Ustawienia ujęć</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>Odwróć współrzędne Y</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Obróć w lewo</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Obróć w prawo</translation>
    </message>
    <message>
        <source>Focal length:</source>
        <translation>Ogniskowa:</translation>
    </message>
    <message>
        <source>Lens Type:</source>
        <translation>Typ obiektywu:</translation>
    </message>
    <message>
        <source>Use XML information</source>
        <translation>Użyj danych z XML</translation>
    </message>
    <message>
        <source>Use image information</source>
        <translation>Użyj danych ze zdjęć</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Stos</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>Wykrywaj połączenia w:</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>poziomie odniesienia</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>wszystkich poziomach stosu</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>W obrębie stosu:</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>Użyj stałych połączeń</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>Wykryj punkty kontrolne</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>Opcje wykrywania</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Automatyczne wykrywanie</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Usuń błędne połączenia</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Pomiń optymalizację</translation>
    </message>
    <message>
        <source>Use recorded location</source>
        <translation>Użyj zapisanych pozycji</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Powiększenie</translation>
    </message>
</context>
</TS>
