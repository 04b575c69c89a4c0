<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>UIWPClauss</name>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Error parse file:%1</source>
        <translation>Ошибка чтения файла: %1</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>Выберите файл съёмки и/или снимки</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Все файлы (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Выберите снимки</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>Н/Д</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>Недостаточно памяти для такого числа снимков. Закройте другие программы и повторите попытку.</translation>
    </message>
</context>
<context>
    <name>UIWPClaussClass</name>
    <message>
        <source>Clauss panohead</source>
        <translation>Панорамная головка Clauss</translation>
    </message>
    <message>
        <source>Clauss panohead import</source>
        <translation>Импорт с панорамной головки Clauss</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://dr-clauss.de&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Clauss&lt;/font&gt;&lt;/a&gt; provides special equipment for panoramic photography and VR applications.</source>
        <translation>&lt;a href=&quot;https://dr-clauss.de&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Clauss&lt;/font&gt;&lt;/a&gt; выпускает специальное оборудование для панорамной фотографии и задач виртуальной реальности.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Script file:</source>
        <translation>Файл сценария:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Number of shoot:</source>
        <translation>Позиций съёмки:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>Н/Д</translation>
    </message>
    <message>
        <source>Theta:</source>
        <translation>Тета:</translation>
    </message>
    <message>
        <source>Phi:</source>
        <translation>Фи:</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>Инвертировать координаты Y</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Снимки:</translation>
    </message>
    <message>
        <source>Number of image:</source>
        <translation>Снимков:</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Автоматический поиск</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Удалять ошибочные связи</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Пропустить оптимизацию</translation>
    </message>
    <message>
        <source>Guided optimization</source>
        <translation>Управляемая оптимизация</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Предпросмотр</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Масштаб</translation>
    </message>
</context>
<context>
    <name>UIWPGigapan</name>
    <message>
        <source>Select images</source>
        <translation>Выберите снимки</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Все файлы (*.*)</translation>
    </message>
    <message>
        <source>images in </source>
        <translation>фото в сетке: </translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>Недостаточно памяти для такого числа снимков. Закройте другие программы и повторите попытку.</translation>
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
        <translation>Импорт панорамы Gigapan</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;http://www.gigapan.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Gigapan&lt;/font&gt;&lt;/a&gt; allows users to upload, share, and explore brilliant gigapixel+ panoramas from around the globe.</source>
        <translation>&lt;a href=&quot;http://www.gigapan.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Gigapan&lt;/font&gt;&lt;/a&gt; позволяет загружать, публиковать и рассматривать великолепные панорамы размером более гигапикселя со всего мира.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Images :</source>
        <translation>Снимки:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source># Images in</source>
        <translation>Число снимков:</translation>
    </message>
    <message>
        <source>rows and</source>
        <translation>строк ×</translation>
    </message>
    <message>
        <source>columns.</source>
        <translation>столбцов</translation>
    </message>
    <message>
        <source>Ignore N files </source>
        <translation>Пропустить файлов в начале </translation>
    </message>
    <message>
        <source>Nb image per location ( bracketing )</source>
        <translation>Снимков на позицию (брекетинг)</translation>
    </message>
    <message>
        <source>Shoot layout</source>
        <translation>Схема съёмки</translation>
    </message>
    <message>
        <source>Columns (default)</source>
        <translation>Столбцы (по умолчанию)</translation>
    </message>
    <message>
        <source>Columns: to left</source>
        <translation>Столбцы: влево</translation>
    </message>
    <message>
        <source>Rows: downward</source>
        <translation>Строки: вниз</translation>
    </message>
    <message>
        <source>Rows: upward</source>
        <translation>Строки: вверх</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>Настройки съёмки</translation>
    </message>
    <message>
        <source>Force 360° panorama</source>
        <translation>Считать панораму круговой (360°)</translation>
    </message>
    <message>
        <source>Overlapping</source>
        <translation>Перекрытие</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Стек</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>Искать связи:</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>на опорном уровне</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>на всех уровнях стека</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>Внутри стека:</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>Использовать жёсткие связи</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>Искать контрольные точки</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>Параметры поиска</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Автоматический поиск</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Удалять ошибочные связи</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Пропустить оптимизацию</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Предпросмотр</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Масштаб</translation>
    </message>
</context>
<context>
    <name>UIWPMerlin</name>
    <message>
        <source>Standard</source>
        <translation>Стандартный</translation>
    </message>
    <message>
        <source>Fisheye</source>
        <translation>Рыбий глаз</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>В XML Papywizard используется брекетинг, но число снимков не кратно числу экспозиций в серии.</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>Выберите файл съёмки и/или снимки</translation>
    </message>
    <message>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>Все файлы (*.*);;Файлы XML (*.xml)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Все файлы (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Выберите снимки</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>Н/Д</translation>
    </message>
    <message>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>В XML указан брекетинг: число снимков должно быть кратно ему</translation>
    </message>
    <message>
        <source>Not the same as in XML fil</source>
        <translation>Не совпадает с файлом XML</translation>
    </message>
    <message>
        <source>Focal Length difference between EXIF and XML</source>
        <translation>Фокусное расстояние в EXIF и XML различается</translation>
    </message>
    <message>
        <source>Lens type difference between EXIF and XML</source>
        <translation>Тип объектива в EXIF и XML различается</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>Недостаточно памяти для такого числа снимков. Закройте другие программы и повторите попытку.</translation>
    </message>
</context>
<context>
    <name>UIWPMerlinClass</name>
    <message>
        <source>Papywizard panohead control software</source>
        <translation>Papywizard, программа управления панорамной головкой</translation>
    </message>
    <message>
        <source>Papywizard import</source>
        <translation>Импорт Papywizard</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; is a free project to drive Merlin/Orion panorama heads. The XML file format is open and used by a wide range of motorized panorama heads.</source>
        <translation>&lt;a href=&quot;https://www.papywizard.org&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;Papywizard&lt;/font&gt;&lt;/a&gt; — свободный проект для управления головками Merlin/Orion. Его открытый формат XML используют многие моторизованные головки.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
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
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Number of images:</source>
        <translation>Снимков:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>Н/Д</translation>
    </message>
    <message>
        <source>Yaw:</source>
        <translation>Рыскание:</translation>
    </message>
    <message>
        <source>Pitch:</source>
        <translation>Тангаж:</translation>
    </message>
    <message>
        <source>Bracketing:</source>
        <translation>Брекетинг:</translation>
    </message>
    <message>
        <source>XML focal:</source>
        <translation>Фокусное в XML:</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Снимки:</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>Фокусное снимков:</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>Настройки съёмки</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>Инвертировать координаты Y</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Повернуть влево</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Повернуть вправо</translation>
    </message>
    <message>
        <source>Focal length:</source>
        <translation>Фокусное расстояние:</translation>
    </message>
    <message>
        <source>Lens Type:</source>
        <translation>Тип объектива:</translation>
    </message>
    <message>
        <source>Use XML information</source>
        <translation>Взять данные из XML</translation>
    </message>
    <message>
        <source>Use image information</source>
        <translation>Взять данные из снимков</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Стек</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>Искать связи:</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>на опорном уровне</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>на всех уровнях стека</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>Внутри стека:</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>Использовать жёсткие связи</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>Искать контрольные точки</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>Параметры поиска</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Автоматический поиск</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Удалять ошибочные связи</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Пропустить оптимизацию</translation>
    </message>
    <message>
        <source>Use recorded location</source>
        <translation>Использовать записанные позиции</translation>
    </message>
    <message>
        <source>Header details</source>
        <translation>Данные заголовка</translation>
    </message>
    <message>
        <source>Title:</source>
        <translation>Название:</translation>
    </message>
    <message>
        <source>GPS:</source>
        <translation>GPS:</translation>
    </message>
    <message>
        <source>Comment:</source>
        <translation>Комментарий:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Предпросмотр</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Масштаб</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2</name>
    <message>
        <source>Standard</source>
        <translation>Стандартный</translation>
    </message>
    <message>
        <source>Fisheye</source>
        <translation>Рыбий глаз</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>В XML Papywizard используется брекетинг, но число снимков не кратно числу экспозиций в серии.</translation>
    </message>
    <message>
        <source>Select the preset file and/or images</source>
        <translation>Выберите файл съёмки и/или снимки</translation>
    </message>
    <message>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>Все файлы (*.*);;Файлы XML (*.xml)</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Все файлы (*.*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>Выберите снимки</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>Н/Д</translation>
    </message>
    <message>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>В XML указан брекетинг: число снимков должно быть кратно ему</translation>
    </message>
    <message>
        <source>Not the same as in XML fil</source>
        <translation>Не совпадает с файлом XML</translation>
    </message>
    <message>
        <source>Focal length difference between EXIF and XML</source>
        <translation>Фокусное расстояние в EXIF и XML различается</translation>
    </message>
    <message>
        <source>Lens type difference between EXIF and XML</source>
        <translation>Тип объектива в EXIF и XML различается</translation>
    </message>
    <message>
        <source>There is not enough memory for so many images. Close other programs and try again.</source>
        <translation>Недостаточно памяти для такого числа снимков. Закройте другие программы и повторите попытку.</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2Class</name>
    <message>
        <source>VR Drive II import plugin</source>
        <translation>Модуль импорта VR Drive II</translation>
    </message>
    <message>
        <source>VR Drive 2</source>
        <translation>VR Drive 2</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;https://www.roundshot.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;VR Drive 2&lt;/font&gt;&lt;/a&gt; plug-in enables an automated HDR workflow with all parameters set for true light rendering and easy use of Weavix software.</source>
        <translation>Модуль &lt;a href=&quot;https://www.roundshot.com&quot;&gt;&lt;font color=&quot;#DCDCDC&quot;&gt;VR Drive 2&lt;/font&gt;&lt;/a&gt; автоматизирует работу с HDR: все параметры настроены на верную передачу света и удобную работу с Weavix.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Images:</source>
        <translation>Снимки:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Number of images:</source>
        <translation>Снимков:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>Н/Д</translation>
    </message>
    <message>
        <source>Image focal:</source>
        <translation>Фокусное снимков:</translation>
    </message>
    <message>
        <source>XML:</source>
        <translation>XML:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <source>Yaw:</source>
        <translation>Рыскание:</translation>
    </message>
    <message>
        <source>Pitch:</source>
        <translation>Тангаж:</translation>
    </message>
    <message>
        <source>Bracketing:</source>
        <translation>Брекетинг:</translation>
    </message>
    <message>
        <source>XML focal:</source>
        <translation>Фокусное в XML:</translation>
    </message>
    <message>
        <source>Output:</source>
        <translation>Результат:</translation>
    </message>
    <message>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8 / 16 бит, тональное отображение</translation>
    </message>
    <message>
        <source>32-bits HDR radiance</source>
        <translation>32 бита HDR (яркость)</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Shoot setup</source>
        <translation>Настройки съёмки</translation>
    </message>
    <message>
        <source>Inverse Y coordinates</source>
        <translation>Инвертировать координаты Y</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Повернуть влево</translation>
    </message>
    <message>
        <source>Rotate right</source>
        <translation>Повернуть вправо</translation>
    </message>
    <message>
        <source>Focal length:</source>
        <translation>Фокусное расстояние:</translation>
    </message>
    <message>
        <source>Lens Type:</source>
        <translation>Тип объектива:</translation>
    </message>
    <message>
        <source>Use XML information</source>
        <translation>Взять данные из XML</translation>
    </message>
    <message>
        <source>Use image information</source>
        <translation>Взять данные из снимков</translation>
    </message>
    <message>
        <source>Stack</source>
        <translation>Стек</translation>
    </message>
    <message>
        <source>Detect links in:</source>
        <translation>Искать связи:</translation>
    </message>
    <message>
        <source>The reference level</source>
        <translation>на опорном уровне</translation>
    </message>
    <message>
        <source>All stack levels</source>
        <translation>на всех уровнях стека</translation>
    </message>
    <message>
        <source>For a stack:</source>
        <translation>Внутри стека:</translation>
    </message>
    <message>
        <source>Use hard links</source>
        <translation>Использовать жёсткие связи</translation>
    </message>
    <message>
        <source>Detect control points</source>
        <translation>Искать контрольные точки</translation>
    </message>
    <message>
        <source>Detection options</source>
        <translation>Параметры поиска</translation>
    </message>
    <message>
        <source>Auto detection</source>
        <translation>Автоматический поиск</translation>
    </message>
    <message>
        <source>Clean wrong link</source>
        <translation>Удалять ошибочные связи</translation>
    </message>
    <message>
        <source>Skip optimization</source>
        <translation>Пропустить оптимизацию</translation>
    </message>
    <message>
        <source>Use recorded location</source>
        <translation>Использовать записанные позиции</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Предпросмотр</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Масштаб</translation>
    </message>
</context>
</TS>
