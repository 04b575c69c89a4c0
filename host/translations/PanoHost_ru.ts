<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>MakeTexts</name>
    <message>
        <source>Reading the photos</source>
        <translation>Чтение снимков</translation>
    </message>
    <message>
        <source>Developing RAW files</source>
        <translation>Проявка файлов RAW</translation>
    </message>
    <message>
        <source>Looking for details in the photos</source>
        <translation>Поиск деталей на снимках</translation>
    </message>
    <message>
        <source>Comparing neighbouring photos</source>
        <translation>Сравнение соседних снимков</translation>
    </message>
    <message>
        <source>Putting the photos in their places</source>
        <translation>Расстановка снимков по местам</translation>
    </message>
    <message>
        <source>Comparing the light of the photos</source>
        <translation>Сравнение яркости снимков</translation>
    </message>
    <message>
        <source>Joining brackets</source>
        <translation>Объединение серий брекетинга</translation>
    </message>
    <message>
        <source>Bending the photos into shape</source>
        <translation>Преобразование снимков</translation>
    </message>
    <message>
        <source>Blending the photos</source>
        <translation>Сшивка снимков</translation>
    </message>
    <message>
        <source>Fusing brackets</source>
        <translation>Слияние серий брекетинга</translation>
    </message>
    <message>
        <source>Writing the picture</source>
        <translation>Запись панорамы</translation>
    </message>
    <message>
        <source>Making the page</source>
        <translation>Создание страницы</translation>
    </message>
    <message>
        <source>Cutting tiles to zoom into</source>
        <translation>Нарезка фрагментов для увеличения</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>%1 (step %2 of %3)</source>
        <translation>%1 (шаг %2 из %3)</translation>
    </message>
    <message>
        <source>%1 x %2 in at %3 dpi</source>
        <translation>%1 x %2 дюймов при %3 dpi</translation>
    </message>
    <message>
        <source>%1 x %2 cm at %3 dpi</source>
        <translation>%1 x %2 см при %3 dpi</translation>
    </message>
    <message>
        <source>%1 x %2 pixels at most (%3); takes up to %4 of the disk and %5 of memory.</source>
        <translation>Не более %1 x %2 пикселей (%3); займёт до %4 на диске и %5 памяти.</translation>
    </message>
</context>
<context>
    <name>PanoHost</name>
    <message>
        <source>%1 s left</source>
        <translation>осталось %1 с</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>осталось %1 мин</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>осталось %1 ч %2 мин</translation>
    </message>
</context>
<context>
    <name>PanoHost::AboutBox</name>
    <message>
        <source>About panohost</source>
        <translation>О программе panohost</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Лицензии</translation>
    </message>
    <message>
        <source>panohost as a program: GPL-3.0-or-later; its source: GPL-2.0-or-later.</source>
        <translation>panohost как программа: GPL-3.0-or-later; исходный код: GPL-2.0-or-later.</translation>
    </message>
    <message>
        <source>The plug-in library XPanoHead: MIT.</source>
        <translation>Библиотека модулей XPanoHead: MIT.</translation>
    </message>
    <message>
        <source>They stand on:</source>
        <translation>Они опираются на:</translation>
    </message>
    <message>
        <source>&amp;Licences:</source>
        <translation>&amp;Лицензии:</translation>
    </message>
</context>
<context>
    <name>PanoHost::ChoicePage</name>
    <message>
        <source>Needs photos only</source>
        <translation>Нужны только снимки</translation>
    </message>
    <message>
        <source>Needs *.%1 record and photos</source>
        <translation>Нужны файл съёмки (*.%1) и снимки</translation>
    </message>
    <message>
        <source>%1 %2 by %3</source>
        <translation>%1 %2, %3</translation>
    </message>
    <message>
        <source>Which head took the photos?</source>
        <translation>Какой головкой сделаны снимки?</translation>
    </message>
    <message>
        <source>Choose the head, or drop its record and the photos onto this window.</source>
        <translation>Выберите головку или перетащите её файл съёмки и снимки в это окно.</translation>
    </message>
    <message>
        <source>Heads</source>
        <translation>Головки</translation>
    </message>
    <message>
        <source>&amp;Head:</source>
        <translation>&amp;Головка:</translation>
    </message>
    <message>
        <source>%1 record with %2 shots</source>
        <translation>Файл съёмки %1, кадров: %2</translation>
    </message>
    <message>
        <source>%1, which no head can read</source>
        <translation>%1: не читается ни одной головкой</translation>
    </message>
    <message>
        <source>one photo</source>
        <translation>один снимок</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>снимков: %1</translation>
    </message>
    <message>
        <source>Looking at the files</source>
        <translation>Просмотр файлов</translation>
    </message>
    <message>
        <source>Next waits for the head that took the photos.</source>
        <translation>«Далее» ждёт выбора головки, которой сделаны снимки.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
</context>
<context>
    <name>PanoHost::FileDrop</name>
    <message>
        <source>Drop the files here</source>
        <translation>Перетащите файлы сюда</translation>
    </message>
</context>
<context>
    <name>PanoHost::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>Нас&amp;тройки...</translation>
    </message>
    <message>
        <source>&amp;About panohost</source>
        <translation>&amp;О программе panohost</translation>
    </message>
</context>
<context>
    <name>PanoHost::ImportWizard</name>
    <message>
        <source>Import a panorama</source>
        <translation>Импорт панорамы</translation>
    </message>
    <message>
        <source>&amp;Another import</source>
        <translation>&amp;Ещё один импорт</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>Не выполнено</translation>
    </message>
    <message>
        <source>Files not taken</source>
        <translation>Файлы не приняты</translation>
    </message>
    <message>
        <source>Neither records nor photos are among these files.</source>
        <translation>Среди этих файлов нет ни файлов съёмки, ни снимков.</translation>
    </message>
    <message>
        <source>The name of a photo holds a double quote or a line end, which file dialogs cannot take. Rename it, or use &quot;panohost import&quot; on the command line.</source>
        <translation>Имя одного из снимков содержит двойную кавычку или перевод строки, чего диалоги выбора файлов не допускают. Переименуйте его или используйте «panohost import» в командной строке.</translation>
    </message>
    <message>
        <source>Close the window?</source>
        <translation>Закрыть окно?</translation>
    </message>
    <message>
        <source>The panorama is still being made. What is finished of it is kept: made again, it goes on from there.</source>
        <translation>Панорама ещё создаётся. То, что уже готово, сохранится: в следующий раз работа продолжится с этого места.</translation>
    </message>
    <message>
        <source>The panorama has not been saved.</source>
        <translation>Панорама не сохранена.</translation>
    </message>
    <message>
        <source>The photos and options of this page will be forgotten.</source>
        <translation>Снимки и параметры этой страницы будут потеряны.</translation>
    </message>
    <message>
        <source>A step has failed</source>
        <translation>Шаг не удался</translation>
    </message>
    <message>
        <source>This page could not do what you asked: %1. Your files are as they were. Try again, or go back and choose fewer files.</source>
        <translation>Эта страница не смогла выполнить запрос: %1. Ваши файлы не изменились. Повторите попытку или вернитесь и выберите меньше файлов.</translation>
    </message>
    <message>
        <source>Choose the head that took the photos, then Next. You can also drop the head&apos;s record and the photos, or the folder that holds them, onto this window.</source>
        <translation>Выберите головку, которой сделаны снимки, затем нажмите «Далее». Можно также перетащить в это окно файл съёмки головки и снимки или папку, где они лежат.</translation>
    </message>
    <message>
        <source>Say where the panorama goes and press Make panorama. It can be stopped at any time: what is finished is kept, and made again it goes on from there.</source>
        <translation>Укажите, куда записать панораму, и нажмите «Создать панораму». Работу можно остановить в любой момент: то, что готово, сохраняется, и в следующий раз она продолжится с этого места.</translation>
    </message>
    <message>
        <source>Next makes the panorama here. Or save the project and open it in Hugin, or save the description as JSON. Back returns to the import page; its photos and options are kept.</source>
        <translation>«Далее» создаёт панораму здесь. Можно также сохранить проект и открыть его в Hugin или сохранить описание в формате JSON. «Назад» возвращает на страницу импорта; её снимки и параметры сохраняются.</translation>
    </message>
    <message>
        <source>Choose the head&apos;s record and all its photos. Next is enabled when every photo has been read and their number is that of the record. Red text says what does not fit; the line below all says why, and its buttons put it right.</source>
        <translation>Выберите файл съёмки головки и все её снимки. Кнопка «Далее» доступна, когда все снимки прочитаны и их число совпадает с файлом съёмки. Красный текст показывает, что не сходится; строка в самом низу объясняет почему, а её кнопки это исправляют.</translation>
    </message>
</context>
<context>
    <name>PanoHost::MakePage</name>
    <message>
        <source>Make the panorama</source>
        <translation>Создание панорамы</translation>
    </message>
    <message>
        <source>Every photo is put where it belongs, and all are joined to one picture.</source>
        <translation>Каждый снимок ставится на своё место, и все они соединяются в одно изображение.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход работы</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>&amp;Журнал</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Show in fol&amp;der</source>
        <translation>Показать в &amp;папке</translation>
    </message>
    <message>
        <source>Open &amp;in browser</source>
        <translation>Открыть в &amp;браузере</translation>
    </message>
    <message>
        <source>Open in H&amp;ugin</source>
        <translation>&amp;Открыть в Hugin</translation>
    </message>
    <message>
        <source>S&amp;ettings</source>
        <translation>Нас&amp;тройки</translation>
    </message>
    <message>
        <source>Make it again, in another size or as other files.</source>
        <translation>Создать ещё раз, в другом размере или в других файлах.</translation>
    </message>
    <message>
        <source>Hugin could not be started. Is it installed?</source>
        <translation>Не удалось запустить Hugin. Установлена ли эта программа?</translation>
    </message>
    <message>
        <source>&amp;Change...</source>
        <translation>&amp;Изменить...</translation>
    </message>
    <message>
        <source>As sharp as the photos</source>
        <translation>С резкостью снимков</translation>
    </message>
    <message>
        <source>Half as wide</source>
        <translation>Половина ширины</translation>
    </message>
    <message>
        <source>A quarter as wide: a quick look</source>
        <translation>Четверть ширины: для быстрого просмотра</translation>
    </message>
    <message>
        <source>Fused: shows lights and shadows</source>
        <translation>Слияние: видны света и тени</translation>
    </message>
    <message>
        <source>The reference exposure only</source>
        <translation>Только опорная экспозиция</translation>
    </message>
    <message>
        <source>The light itself (HDR)</source>
        <translation>Реальные значения яркости (HDR)</translation>
    </message>
    <message>
        <source>A pa&amp;ge that opens in any browser</source>
        <translation>Страница для &amp;любого браузера</translation>
    </message>
    <message>
        <source>A folder to &amp;zoom into, of any size</source>
        <translation>Папка для просмотра с &amp;увеличением, любого размера</translation>
    </message>
    <message>
        <source>&amp;Trust the head: skip the alignment</source>
        <translation>Доверять &amp;головке: пропустить выравнивание</translation>
    </message>
    <message>
        <source>Photos stay at the angles that the head has recorded. Quicker, and right where the photos show nothing to go by.</source>
        <translation>Снимки остаются под теми углами, которые записала головка. Это быстрее и верно там, где на снимках не за что зацепиться.</translation>
    </message>
    <message>
        <source>&amp;Picture:</source>
        <translation>Изобр&amp;ажение:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>&amp;Размер:</translation>
    </message>
    <message>
        <source>B&amp;rackets:</source>
        <translation>Бре&amp;кетинг:</translation>
    </message>
    <message>
        <source>Also:</source>
        <translation>Также:</translation>
    </message>
    <message>
        <source>Angles:</source>
        <translation>Углы:</translation>
    </message>
    <message>
        <source>Where the panorama goes</source>
        <translation>Куда записать панораму</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.tif)</source>
        <translation>Изображения (*.jpg *.tif)</translation>
    </message>
    <message>
        <source>Photos are RAW files, and no program is installed that develops them. Install libraw-bin, dcraw, darktable or rawtherapee, or take the JPEGs of these photos.</source>
        <translation>Снимки в формате RAW, а программа для их проявки не установлена. Установите libraw-bin, dcraw, darktable или rawtherapee либо возьмите JPEG этих снимков.</translation>
    </message>
    <message>
        <source>Estimating...</source>
        <translation>Оценка...</translation>
    </message>
    <message>
        <source>Stopping...</source>
        <translation>Остановка...</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Запуск...</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>Остано&amp;вить</translation>
    </message>
    <message>
        <source>&amp;Make panorama</source>
        <translation>Создать панора&amp;му</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Предупреждение: %1</translation>
    </message>
    <message>
        <source>Done:</source>
        <translation>Готово:</translation>
    </message>
    <message>
        <source>Stopped. What was finished is kept: Make panorama goes on from there.</source>
        <translation>Остановлено. То, что готово, сохранено: «Создать панораму» продолжит с этого места.</translation>
    </message>
    <message>
        <source>No program is set up here that opens %1.</source>
        <translation>Здесь нет программы, которая открывает %1.</translation>
    </message>
</context>
<context>
    <name>PanoHost::MakeRunner</name>
    <message>
        <source>Not enough memory</source>
        <translation>Недостаточно памяти</translation>
    </message>
    <message>
        <source>close other programs, or make the panorama smaller</source>
        <translation>закройте другие программы или уменьшите панораму</translation>
    </message>
</context>
<context>
    <name>PanoHost::PanoHostApplication</name>
    <message>
        <source>not enough memory</source>
        <translation>недостаточно памяти</translation>
    </message>
    <message>
        <source>it does not say why</source>
        <translation>причина не указана</translation>
    </message>
</context>
<context>
    <name>PanoHost::PictureView</name>
    <message>
        <source>Finished panorama</source>
        <translation>Готовая панорама</translation>
    </message>
    <message>
        <source>Wheel, + and -: magnify. Drag, arrows: move. Double click, 0: all of it.</source>
        <translation>Колесо, + и -: масштаб. Перетаскивание, стрелки: сдвиг. Двойной щелчок, 0: целиком.</translation>
    </message>
</context>
<context>
    <name>PanoHost::PositionsModel</name>
    <message>
        <source>No.</source>
        <translation>№</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Снимки</translation>
    </message>
    <message>
        <source>Yaw %1</source>
        <translation>Рыскание %1</translation>
    </message>
    <message>
        <source>Pitch %1</source>
        <translation>Тангаж %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Крен %1</translation>
    </message>
    <message>
        <source>Aligned yaw %1</source>
        <translation>Рыскание после выравнивания %1</translation>
    </message>
    <message>
        <source>Aligned pitch %1</source>
        <translation>Тангаж после выравнивания %1</translation>
    </message>
    <message>
        <source>Aligned roll %1</source>
        <translation>Крен после выравнивания %1</translation>
    </message>
    <message>
        <source>Off by %1</source>
        <translation>Отклонение %1</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Точки</translation>
    </message>
    <message>
        <source>Error (pixels)</source>
        <translation>Ошибка (пиксели)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Exposure (EV)</source>
        <translation>Экспозиция (EV)</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Связи</translation>
    </message>
    <message>
        <source>As the head recorded it: to the right, in degrees</source>
        <translation>По записи головки: вправо, в градусах</translation>
    </message>
    <message>
        <source>As the head recorded it: up, in degrees</source>
        <translation>По записи головки: вверх, в градусах</translation>
    </message>
    <message>
        <source>As the head recorded it: clockwise, in degrees</source>
        <translation>По записи головки: по часовой стрелке, в градусах</translation>
    </message>
    <message>
        <source>How far the photos show that the head stood elsewhere than recorded</source>
        <translation>Насколько, судя по снимкам, головка стояла не там, где записано</translation>
    </message>
    <message>
        <source>Spots that were found again in other photos</source>
        <translation>Места, найденные и на других снимках</translation>
    </message>
    <message>
        <source>How far such spots still lie apart, half of them nearer</source>
        <translation>Насколько такие места ещё расходятся; у половины из них расхождение меньше</translation>
    </message>
    <message>
        <source>Of the first photo: each step up lets in half as much light</source>
        <translation>Для первого снимка: каждая ступень вверх пропускает вдвое меньше света</translation>
    </message>
    <message>
        <source>Neighbours in which spots of this photo are looked for</source>
        <translation>Соседи, на которых ищутся места этого снимка</translation>
    </message>
</context>
<context>
    <name>PanoHost::PositionsTable</name>
    <message>
        <source>Positions</source>
        <translation>Позиции</translation>
    </message>
</context>
<context>
    <name>PanoHost::Preferences</name>
    <message>
        <source>Use the &amp;desktop&apos;s file dialogs</source>
        <translation>Использовать системные &amp;диалоги выбора файлов</translation>
    </message>
    <message>
        <source>Share &amp;thumbnails with the desktop</source>
        <translation>Использовать общие с системой &amp;миниатюры</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>where the system has them</source>
        <translation>там, где они есть в системе</translation>
    </message>
    <message>
        <source>Choo&amp;se...</source>
        <translation>&amp;Выбрать...</translation>
    </message>
    <message>
        <source>Choose the folder of the tools</source>
        <translation>Выбрать папку инструментов</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Язык:</translation>
    </message>
    <message>
        <source>&amp;Folder of the tools:</source>
        <translation>&amp;Папка инструментов:</translation>
    </message>
    <message>
        <source>Tools:</source>
        <translation>Инструменты:</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Язык системы</translation>
    </message>
    <message>
        <source>Folder of the tools</source>
        <translation>Папка инструментов</translation>
    </message>
    <message>
        <source>%1: not found</source>
        <translation>%1: не найдено</translation>
    </message>
    <message>
        <source>%1: found, %2</source>
        <translation>%1: найдено, %2</translation>
    </message>
    <message>
        <source>No such folder</source>
        <translation>Нет такой папки</translation>
    </message>
    <message>
        <source>%1 is no folder; choose another one, or leave the field empty.</source>
        <translation>%1 — не папка; выберите другую или оставьте поле пустым.</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>Сантиметры</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Дюймы</translation>
    </message>
    <message>
        <source>&amp;Units of prints:</source>
        <translation>&amp;Единицы для отпечатков:</translation>
    </message>
    <message>
        <source>The language changes with the next start.</source>
        <translation>Язык изменится при следующем запуске.</translation>
    </message>
</context>
<context>
    <name>PanoHost::PreviewGuide</name>
    <message>
        <source>Drop the head&apos;s record and the photos here</source>
        <translation>Перетащите сюда файл съёмки головки и снимки</translation>
    </message>
    <message>
        <source>Drop the photos here</source>
        <translation>Перетащите сюда снимки</translation>
    </message>
    <message>
        <source>The wheel zooms, a double click shows all.</source>
        <translation>Колесо меняет масштаб, двойной щелчок показывает всё.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ReadingBar</name>
    <message>
        <source>Reading photos</source>
        <translation>Чтение снимков</translation>
    </message>
    <message>
        <source>%1 photos are handed over...</source>
        <translation>Передача снимков: %1...</translation>
    </message>
    <message>
        <source>%1 of %2 photos</source>
        <translation>Снимки: %1 из %2</translation>
    </message>
    <message>
        <source>, %1 per second</source>
        <translation>, %1 в секунду</translation>
    </message>
</context>
<context>
    <name>PanoHost::RecentList</name>
    <message>
        <source>%1, %2 photos, %3</source>
        <translation>%1, снимков: %2, %3</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Убрать</translation>
    </message>
    <message>
        <source>Recent shoots</source>
        <translation>Недавние съёмки</translation>
    </message>
    <message>
        <source>&amp;Recent shoots:</source>
        <translation>Недавние съё&amp;мки:</translation>
    </message>
    <message>
        <source>Remove the shoot from this list</source>
        <translation>Убрать съёмку из этого списка</translation>
    </message>
    <message>
        <source>&amp;Clear list</source>
        <translation>&amp;Очистить список</translation>
    </message>
    <message>
        <source>The files are gone.</source>
        <translation>Файлов больше нет.</translation>
    </message>
    <message>
        <source>The files are gone</source>
        <translation>Файлов больше нет</translation>
    </message>
    <message>
        <source>%1 cannot be found; it may lie on a medium that is not there. Remove it from the list?</source>
        <translation>Не удалось найти %1; возможно, носитель не подключён. Убрать из списка?</translation>
    </message>
</context>
<context>
    <name>PanoHost::ResultPage</name>
    <message>
        <source>The panorama</source>
        <translation>Панорама</translation>
    </message>
    <message>
        <source>Look whether the photos stand where they belong, then save the panorama.</source>
        <translation>Проверьте, на своих ли местах снимки, затем сохраните панораму.</translation>
    </message>
    <message>
        <source>Views of the panorama</source>
        <translation>Виды панорамы</translation>
    </message>
    <message>
        <source>Pictu&amp;re</source>
        <translation>Изобр&amp;ажение</translation>
    </message>
    <message>
        <source>P&amp;ositions</source>
        <translation>Поз&amp;иции</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Сводка</translation>
    </message>
    <message>
        <source>S&amp;ummary</source>
        <translation>Свод&amp;ка</translation>
    </message>
    <message>
        <source>Back to &amp;enter it</source>
        <translation>&amp;Вернуться и ввести</translation>
    </message>
    <message>
        <source>Save &amp;project...</source>
        <translation>Сохранить &amp;проект...</translation>
    </message>
    <message>
        <source>Save &amp;description...</source>
        <translation>Сохранить &amp;описание...</translation>
    </message>
    <message>
        <source>Save &amp;table...</source>
        <translation>Сохранить &amp;таблицу...</translation>
    </message>
    <message>
        <source>Open in Hu&amp;gin</source>
        <translation>Отк&amp;рыть в Hugin</translation>
    </message>
    <message>
        <source>Nothing saved</source>
        <translation>Ничего не сохранено</translation>
    </message>
    <message>
        <source>The panorama has not been saved. Go on all the same?</source>
        <translation>Панорама не сохранена. Всё равно продолжить?</translation>
    </message>
    <message>
        <source>Nothing that can be saved.</source>
        <translation>Сохранять нечего.</translation>
    </message>
    <message>
        <source>To look at</source>
        <translation>Требует внимания</translation>
    </message>
    <message>
        <source>One more stands in the summary.</source>
        <translation>Ещё одно замечание есть в сводке.</translation>
    </message>
    <message>
        <source>%1 more stand in the summary.</source>
        <translation>Других замечаний в сводке: %1.</translation>
    </message>
    <message>
        <source>The project was not saved: the focal length is not known. Go back and enter it in the line below the page.</source>
        <translation>Проект не сохранён: фокусное расстояние неизвестно. Вернитесь и введите его в строке под страницей.</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Сохранить проект</translation>
    </message>
    <message>
        <source>Hugin projects (*.pto)</source>
        <translation>Проекты Hugin (*.pto)</translation>
    </message>
    <message>
        <source>Save the description</source>
        <translation>Сохранить описание</translation>
    </message>
    <message>
        <source>Descriptions (*.json)</source>
        <translation>Описания (*.json)</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Сохранить таблицу</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Значения, разделённые запятыми (*.csv)</translation>
    </message>
    <message>
        <source>Hugin could not be started. Is it installed? Try to open the saved project from Hugin itself.</source>
        <translation>Не удалось запустить Hugin. Установлена ли эта программа? Попробуйте открыть сохранённый проект в самом Hugin.</translation>
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
        <translation>1 снимок</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>Снимков: %1</translation>
    </message>
    <message>
        <source>1 position</source>
        <translation>1 позиция</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>позиций: %1</translation>
    </message>
    <message>
        <source> (brackets of %1)</source>
        <translation> (брекетинг по %1)</translation>
    </message>
    <message>
        <source> (brackets of %1 to %2)</source>
        <translation> (брекетинг по %1–%2)</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>no links</source>
        <translation>связей нет</translation>
    </message>
    <message>
        <source>1 link</source>
        <translation>1 связь</translation>
    </message>
    <message>
        <source>%1 links</source>
        <translation>связей: %1</translation>
    </message>
    <message>
        <source>%1, into HDR</source>
        <translation>%1, результат в HDR</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Файл съёмки</translation>
    </message>
    <message>
        <source>Within brackets</source>
        <translation>Внутри серии брекетинга</translation>
    </message>
    <message>
        <source>as one</source>
        <translation>как одно целое</translation>
    </message>
    <message>
        <source>The photos of a bracket lie exactly on each other.</source>
        <translation>Снимки одной серии лежат точно друг на друге.</translation>
    </message>
    <message>
        <source>Right for a firm tripod: one direction counts for all of them.</source>
        <translation>Подходит для устойчивого штатива: одно направление действует для всех.</translation>
    </message>
    <message>
        <source>each by itself</source>
        <translation>каждый сам по себе</translation>
    </message>
    <message>
        <source>Control points are looked for between the photos of a bracket.</source>
        <translation>Контрольные точки ищутся между снимками одной серии.</translation>
    </message>
    <message>
        <source>Right when the camera may have moved between two exposures.</source>
        <translation>Подходит, если камера могла сдвинуться между двумя экспозициями.</translation>
    </message>
    <message>
        <source>Wrong points</source>
        <translation>Ошибочные точки</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>удаляются</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>остаются</translation>
    </message>
    <message>
        <source>They are marked, and move nothing.</source>
        <translation>Они помечаются и ничего не сдвигают.</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Объектив</translation>
    </message>
    <message>
        <source>As for 35 mm film: it says how wide a photo sees.</source>
        <translation>В эквиваленте 35 мм: фокусное расстояние определяет угол обзора снимка.</translation>
    </message>
    <message>
        <source>fisheye lens, focal length not known</source>
        <translation>объектив «рыбий глаз», фокусное расстояние неизвестно</translation>
    </message>
    <message>
        <source>standard lens, focal length not known</source>
        <translation>стандартный объектив, фокусное расстояние неизвестно</translation>
    </message>
    <message>
        <source>Nothing can be put together without it.</source>
        <translation>Без него ничего нельзя собрать.</translation>
    </message>
    <message>
        <source>fisheye lens of %1 mm</source>
        <translation>объектив «рыбий глаз» %1 мм</translation>
    </message>
    <message>
        <source>standard lens of %1 mm</source>
        <translation>стандартный объектив %1 мм</translation>
    </message>
    <message>
        <source>Brackets</source>
        <translation>Брекетинг</translation>
    </message>
    <message>
        <source>none, into HDR</source>
        <translation>нет, результат в HDR</translation>
    </message>
    <message>
        <source>HDR was chosen, but there is one exposure of each position.</source>
        <translation>Выбран HDR, но у каждой позиции только одна экспозиция.</translation>
    </message>
    <message>
        <source>into HDR</source>
        <translation>объединяется в HDR</translation>
    </message>
    <message>
        <source>The picture holds the light itself, from all exposures.</source>
        <translation>Изображение содержит реальные значения яркости из всех экспозиций.</translation>
    </message>
    <message>
        <source>For programs that work on with it: no screen shows all of it.</source>
        <translation>Для программ, которые обработают его дальше: ни один экран не покажет всего.</translation>
    </message>
    <message>
        <source>into an ordinary picture</source>
        <translation>объединяется в обычное изображение</translation>
    </message>
    <message>
        <source>Of each exposure what is neither too dark nor too bright.</source>
        <translation>Из каждой экспозиции берётся то, что не слишком темно и не слишком светло.</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Связи</translation>
    </message>
    <message>
        <source>Control points are looked for in these pairs of neighbours alone.</source>
        <translation>Контрольные точки ищутся только в этих парах соседей.</translation>
    </message>
    <message>
        <source>Photos that are no neighbours are never compared: a sky or a wall that looks alike cannot lead astray.</source>
        <translation>Снимки, которые не соседствуют, никогда не сравниваются: однородное небо или стена не собьют с толку.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>One position has no neighbours.</source>
        <translation>У единственной позиции нет соседей.</translation>
    </message>
    <message>
        <source>All photos that overlap are compared instead.</source>
        <translation>Вместо этого сравниваются все перекрывающиеся снимки.</translation>
    </message>
    <message>
        <source>Control points</source>
        <translation>Контрольные точки</translation>
    </message>
    <message>
        <source>not looked for</source>
        <translation>не ищутся</translation>
    </message>
    <message>
        <source>Photos stay where the head has recorded them.</source>
        <translation>Снимки остаются на местах, записанных головкой.</translation>
    </message>
    <message>
        <source>In Hugin you can set control points by hand.</source>
        <translation>В Hugin контрольные точки можно расставить вручную.</translation>
    </message>
    <message>
        <source>looked for</source>
        <translation>ищутся</translation>
    </message>
    <message>
        <source>Spots that two photos share say how they belong together.</source>
        <translation>Общие места двух снимков показывают, как снимки стыкуются.</translation>
    </message>
    <message>
        <source>looked for in one exposure of each bracket</source>
        <translation>ищутся в одной экспозиции каждой серии</translation>
    </message>
    <message>
        <source>In the first photo of each bracket, the reference.</source>
        <translation>На первом, опорном снимке каждой серии.</translation>
    </message>
    <message>
        <source>looked for in all exposures</source>
        <translation>ищутся во всех экспозициях</translation>
    </message>
    <message>
        <source>Takes longer, and finds more where one exposure is too dark or too bright.</source>
        <translation>Занимает больше времени и находит больше там, где одна экспозиция слишком тёмная или слишком светлая.</translation>
    </message>
    <message>
        <source>Optimisation</source>
        <translation>Оптимизация</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>пропущена</translation>
    </message>
    <message>
        <source>The head is trusted: photos stay where it has recorded them.</source>
        <translation>Головке можно доверять: снимки остаются на записанных ею местах.</translation>
    </message>
    <message>
        <source>Right for a head without play. It saves the time of looking for points.</source>
        <translation>Подходит для головки без люфта. Экономит время на поиск точек.</translation>
    </message>
    <message>
        <source>from the record</source>
        <translation>от файла съёмки</translation>
    </message>
    <message>
        <source>Control points move the photos; those without any stay as recorded.</source>
        <translation>Контрольные точки сдвигают снимки; снимки без точек остаются на записанных местах.</translation>
    </message>
    <message>
        <source>The usual choice: skies and walls without a mark stay in place.</source>
        <translation>Обычный выбор: небо и стены без примет остаются на месте.</translation>
    </message>
    <message>
        <source>free</source>
        <translation>свободная</translation>
    </message>
    <message>
        <source>The record is where the search begins, no more.</source>
        <translation>Файл съёмки — лишь отправная точка поиска.</translation>
    </message>
    <message>
        <source>Right when the head has slipped.</source>
        <translation>Подходит, если головка сместилась.</translation>
    </message>
    <message>
        <source>The focal length is not known: no photo names it. Go back and enter it in the line below the page, at &quot;Focal length&quot;.</source>
        <translation>Фокусное расстояние неизвестно: его нет ни в одном снимке. Вернитесь и введите его в строке под страницей, в пункте «Фокусное расстояние».</translation>
    </message>
    <message>
        <source>The focal length is not known: neither the record nor a photo names it. Go back and enter it in the line below the page, at &quot;Focal length&quot;.</source>
        <translation>Фокусное расстояние неизвестно: его нет ни в файле съёмки, ни в снимках. Вернитесь и введите его в строке под страницей, в пункте «Фокусное расстояние».</translation>
    </message>
    <message>
        <source>The lens is taken for a fisheye, and no photo says so. If it is none, go back and choose the standard lens.</source>
        <translation>Объектив считается «рыбьим глазом», но ни один снимок этого не подтверждает. Если это не так, вернитесь и выберите стандартный объектив.</translation>
    </message>
    <message>
        <source>The photos say that they were taken through a fisheye, and the lens is taken for a standard one. If it is a fisheye, go back and choose that.</source>
        <translation>Судя по снимкам, использован «рыбий глаз», а объектив считается стандартным. Если это «рыбий глаз», вернитесь и выберите его.</translation>
    </message>
    <message>
        <source>Until then all %1 positions lie on one point.</source>
        <translation>До тех пор все позиции (%1) лежат в одной точке.</translation>
    </message>
    <message>
        <source>All %1 positions lie on one point: the record says that the head did not move.</source>
        <translation>Все позиции (%1) лежат в одной точке: по файлу съёмки головка не двигалась.</translation>
    </message>
    <message>
        <source>No two photos are linked: through a lens of %1 mm neighbours are too far apart. Is the focal length right?</source>
        <translation>Нет ни одной пары связанных снимков: при объективе %1 мм соседи слишком далеко друг от друга. Верно ли фокусное расстояние?</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Порядок</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Снимки</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 was not saved: there is a folder of that name. Choose another name.</source>
        <translation>Файл %1 не сохранён: есть папка с таким именем. Выберите другое имя.</translation>
    </message>
    <message>
        <source>%1 was not saved: the folder %2 is not there. Was it moved, or its disk unplugged? Choose another folder.</source>
        <translation>Файл %1 не сохранён: папки %2 нет. Возможно, её переместили или отключили её диск? Выберите другую папку.</translation>
    </message>
    <message>
        <source>%1 was not saved: the disk is full. Make room on it, or choose a folder on another disk.</source>
        <translation>Файл %1 не сохранён: диск заполнен. Освободите место или выберите папку на другом диске.</translation>
    </message>
    <message>
        <source>%1 was not saved: nothing can be written in %2. Choose a folder of your own, such as your pictures.</source>
        <translation>Файл %1 не сохранён: в %2 ничего нельзя записать. Выберите свою папку, например папку изображений.</translation>
    </message>
    <message>
        <source>%1 was not saved: a file of that name is there and is protected. Choose another name.</source>
        <translation>Файл %1 не сохранён: файл с таким именем уже есть и защищён от записи. Выберите другое имя.</translation>
    </message>
    <message>
        <source>%1 was not saved: the name is too long. Choose a shorter one.</source>
        <translation>Файл %1 не сохранён: имя слишком длинное. Выберите более короткое.</translation>
    </message>
    <message>
        <source>%1 was not saved: %2</source>
        <translation>Файл %1 не сохранён: %2</translation>
    </message>
</context>
<context>
    <name>PanoHost::Said</name>
    <message>
        <source>no control points are wanted (automatic detection is off): kept as recorded</source>
        <translation>контрольные точки не нужны (автоматический поиск отключён): снимки остаются на записанных местах</translation>
    </message>
    <message>
        <source>photos are left as recorded (optimisation is skipped)</source>
        <translation>снимки остаются на записанных местах (оптимизация пропущена)</translation>
    </message>
    <message>
        <source>there is one photo only: kept as recorded</source>
        <translation>снимок всего один: он остаётся на записанном месте</translation>
    </message>
    <message>
        <source>no two photos overlap where the record puts them: kept as recorded</source>
        <translation>по файлу съёмки никакие два снимка не перекрываются: они остаются на записанных местах</translation>
    </message>
    <message>
        <source>no spot was found in two photos (nothing but sky or fog, or the photos are not of this record): kept as recorded</source>
        <translation>ни на одной паре снимков не нашлось общего места (только небо или туман, либо снимки не от этой съёмки): они остаются на записанных местах</translation>
    </message>
    <message>
        <source>%1; kept as recorded</source>
        <translation>%1; остаётся на записанном месте</translation>
    </message>
    <message>
        <source>none of the photos can be used: were they moved since the import?</source>
        <translation>ни один из снимков не пригоден: не переместили ли их после импорта?</translation>
    </message>
    <message>
        <source>the photos fit the order &apos;%1&apos; better than &apos;%2&apos;: import them with --mode %1</source>
        <translation>снимкам лучше подходит порядок «%1», чем «%2»: импортируйте их в порядке %1</translation>
    </message>
    <message>
        <source>the panorama is made %1 stops brighter: what is white in a photo stays white</source>
        <translation>панорама становится светлее на %1 ступени: белое на снимке остаётся белым</translation>
    </message>
    <message>
        <source>%1 of %2 tied, %3, median %4 pixels</source>
        <translation>%2, из них связано: %1, %3, медиана %4 пикселя</translation>
    </message>
    <message>
        <source>%1 point</source>
        <translation>%1 точка</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>точек: %1</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> и ещё %1</translation>
    </message>
    <message>
        <source>no points in %1 (%2): kept where the head put it</source>
        <translation>%1 без точек (%2): остаётся там, куда его поставила головка</translation>
    </message>
    <message>
        <source>no points in %1 (%2): kept where the head put them</source>
        <translation>%1 без точек (%2): остаются там, куда их поставила головка</translation>
    </message>
    <message>
        <source>lens %1 mm instead of %2</source>
        <translation>фокусное расстояние %1 мм вместо %2</translation>
    </message>
    <message>
        <source>the lens darkens its corners by %1 %: evened out</source>
        <translation>объектив затемняет углы на %1 %: выровнено</translation>
    </message>
    <message>
        <source>exposures are not what the photos say, by up to %1 stops: evened out</source>
        <translation>экспозиции отличаются от указанных в снимках, до %1 ступени: выровнено</translation>
    </message>
    <message>
        <source>the head repeats to %1 degrees</source>
        <translation>повторяемость головки: %1 градуса</translation>
    </message>
    <message>
        <source>less than %1</source>
        <translation>менее %1</translation>
    </message>
    <message>
        <source>the camera sits %1 degrees crooked on the head</source>
        <translation>камера стоит на головке криво, с наклоном %1 градуса</translation>
    </message>
    <message>
        <source>the head&apos;s steps are %1 (across) and %2 (up) times what was stated</source>
        <translation>шаг головки относительно заданного: ×%1 по горизонтали, ×%2 по вертикали</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees farther right than recorded: did its turning axis slip?</source>
        <translation>начиная с %1 головка стоит на %2 градуса правее, чем записано: не проскользнула ли ось поворота?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees farther left than recorded: did its turning axis slip?</source>
        <translation>начиная с %1 головка стоит на %2 градуса левее, чем записано: не проскользнула ли ось поворота?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees higher than recorded: did its tilting axis slip?</source>
        <translation>начиная с %1 головка стоит на %2 градуса выше, чем записано: не проскользнула ли ось наклона?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees lower than recorded: did its tilting axis slip?</source>
        <translation>начиная с %1 головка стоит на %2 градуса ниже, чем записано: не проскользнула ли ось наклона?</translation>
    </message>
    <message>
        <source>%1 was taken %2 degrees from where the head says: was it bumped?</source>
        <translation>%1 снят в %2 градуса от направления, указанного головкой: не задели ли её?</translation>
    </message>
    <message>
        <source>residuals suggest parallax (%1 pixels): near things move against far ones; is the camera&apos;s nodal point on the head&apos;s axes?</source>
        <translation>остаточные ошибки указывают на параллакс (%1 пикселя): близкое смещается относительно далёкого; лежит ли нодальная точка камеры на осях головки?</translation>
    </message>
    <message>
        <source>was %1 x %2 pixels when imported, is now %3 x %4</source>
        <translation>при импорте было %1 x %2 пикселей, теперь %3 x %4</translation>
    </message>
    <message>
        <source>cannot keep the features of photos there: %1</source>
        <translation>не удаётся сохранить там детали снимков: %1</translation>
    </message>
    <message>
        <source>TMPDIR names a folder with more room</source>
        <translation>укажите в TMPDIR папку, где больше места</translation>
    </message>
    <message>
        <source>cannot read the features of photos back: %1</source>
        <translation>не удаётся прочитать сохранённые детали снимков: %1</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>%1: %2, bracket %3, focal %4, lens %5</source>
        <translation>%1: %2, брекетинг по %3, фокусное расстояние: %4, объектив: %5</translation>
    </message>
    <message>
        <source>copy it from the card again</source>
        <translation>скопируйте с карты ещё раз</translation>
    </message>
    <message>
        <source>%1 given, %2 readable, focal %3, lens %4</source>
        <translation>выбрано: %1, читается: %2, фокусное расстояние: %3, объектив: %4</translation>
    </message>
    <message>
        <source>neither the photos nor the record name the focal length</source>
        <translation>фокусное расстояние не указано ни в снимках, ни в файле съёмки</translation>
    </message>
    <message>
        <source>give it, as for 35 mm film: --focal 24</source>
        <translation>введите его в эквиваленте 35 мм</translation>
    </message>
    <message>
        <source>not all photos have a capture time</source>
        <translation>не у всех снимков есть время съёмки</translation>
    </message>
    <message>
        <source>%1 was taken before %2</source>
        <translation>%1 снят раньше, чем %2</translation>
    </message>
    <message>
        <source>try --order time</source>
        <translation>упорядочите по времени</translation>
    </message>
    <message>
        <source>capture times agree</source>
        <translation>время съёмки сходится</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>%1 s after %2 (usually %3 s)</source>
        <translation>%1 с после %2 (обычно %3 с)</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>стандартный</translation>
    </message>
    <message>
        <source>fisheye</source>
        <translation>«рыбий глаз»</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 мм</translation>
    </message>
    <message>
        <source>this folder cannot be made</source>
        <translation>не удаётся создать эту папку</translation>
    </message>
    <message>
        <source>is the disk full, or the folder above it read-only?</source>
        <translation>не заполнен ли диск, не защищена ли от записи папка выше?</translation>
    </message>
    <message>
        <source>no photo reaches these sides of the cube, which are left out: %1</source>
        <translation>до этих граней куба не достаёт ни один снимок, они пропущены: %1</translation>
    </message>
    <message>
        <source>cannot be written (%1)</source>
        <translation>не удаётся записать (%1)</translation>
    </message>
    <message>
        <source>make room there or choose another place</source>
        <translation>освободите там место или выберите другое</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>папки %1 нет</translation>
    </message>
    <message>
        <source>create it or choose another place</source>
        <translation>создайте её или выберите другое место</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>это папка</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>это не обычный файл</translation>
    </message>
    <message>
        <source>remove it or choose another name with -o</source>
        <translation>удалите или выберите другое имя</translation>
    </message>
    <message>
        <source>is a file, and a folder of that name is wanted</source>
        <translation>это файл, а нужна папка с таким именем</translation>
    </message>
    <message>
        <source>is a folder that panohost has not made</source>
        <translation>эта папка создана не программой panohost</translation>
    </message>
    <message>
        <source>it left a file that is not complete</source>
        <translation>файл записан не полностью</translation>
    </message>
    <message>
        <source>is the disk full? make room and try again</source>
        <translation>не заполнен ли диск? освободите место и повторите</translation>
    </message>
    <message>
        <source>make room there and try again</source>
        <translation>освободите там место и повторите</translation>
    </message>
    <message>
        <source>the panorama has %1 x %2 pixels, and JPEG files at most %3 to a side</source>
        <translation>в панораме %1 x %2 пикселей, а в файлах JPEG не более %3 по стороне</translation>
    </message>
    <message>
        <source>name it .tif, or make it smaller with --size</source>
        <translation>сохраните как .tif или выберите меньший размер</translation>
    </message>
    <message>
        <source>this panorama&apos;s values are not light</source>
        <translation>в этой панораме нет реальных значений яркости</translation>
    </message>
    <message>
        <source>needs --output hdr</source>
        <translation>выберите «Реальные значения яркости (HDR)»</translation>
    </message>
    <message>
        <source>is not the panorama that was stitched last</source>
        <translation>это не та панорама, что была собрана последней</translation>
    </message>
    <message>
        <source>remove it and try again</source>
        <translation>удалите и повторите</translation>
    </message>
    <message>
        <source>it left %1 incomplete</source>
        <translation>файл %1 записан не полностью</translation>
    </message>
    <message>
        <source>is the disk full?</source>
        <translation>не заполнен ли диск?</translation>
    </message>
    <message>
        <source>the address where the folder will be reached is not known</source>
        <translation>неизвестен адрес, по которому будет доступна папка</translation>
    </message>
    <message>
        <source>give it, such as https://example.org/panoramas</source>
        <translation>укажите его, например https://example.org/panoramas</translation>
    </message>
    <message>
        <source>%1 less %2 ignored</source>
        <translation>%1 без %2 пропущенных</translation>
    </message>
    <message>
        <source>%1, %2, bracket %3, %4 ignored</source>
        <translation>%1, %2, брекетинг по %3, пропущено: %4</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>снимки</translation>
    </message>
    <message>
        <source>--ignore %1 leaves none of %2</source>
        <translation>пропущено %1 из %2, ничего не остаётся</translation>
    </message>
    <message>
        <source>ignore fewer, or name all photos</source>
        <translation>пропустите меньше или выберите все снимки</translation>
    </message>
    <message>
        <source>--bracket %1 is more than %2</source>
        <translation>серии по %1, а есть только %2</translation>
    </message>
    <message>
        <source>each position needs all its exposures</source>
        <translation>каждой позиции нужны все её экспозиции</translation>
    </message>
    <message>
        <source>%1 are not a multiple of bracket %2</source>
        <translation>%1, на полные серии по %2 не разделить</translation>
    </message>
    <message>
        <source>each position needs all its exposures; --ignore N leaves out the first N photos</source>
        <translation>каждой позиции нужны все её экспозиции; лишние файлы в начале можно пропустить</translation>
    </message>
    <message>
        <source>%1 (%2 in brackets of %3)</source>
        <translation>%1 (%2 в сериях по %3)</translation>
    </message>
    <message>
        <source>%1 do not divide %2 evenly</source>
        <translation>%2, поровну на %1 не разделить</translation>
    </message>
    <message>
        <source>are photos missing? --ignore N leaves out the first N photos</source>
        <translation>не хватает снимков? лишние файлы в начале можно пропустить</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 и ещё %2</translation>
    </message>
    <message>
        <source>no pause tells where</source>
        <translation>по паузам не видно где</translation>
    </message>
    <message>
        <source>the longest pause: %1, in row %2 as they were taken</source>
        <translation>самая долгая пауза: %1, в строке %2 по порядку съёмки</translation>
    </message>
    <message>
        <source>the longest pause: %1, in column %2 as they were taken</source>
        <translation>самая долгая пауза: %1, в столбце %2 по порядку съёмки</translation>
    </message>
    <message>
        <source>the pictures do not tell which are missing: %1</source>
        <translation>по снимкам не видно, каких не хватает: %1</translation>
    </message>
    <message>
        <source>no photo for %1 (rows from the top, columns from the left)</source>
        <translation>нет снимка: %1 (строки сверху, столбцы слева)</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>нет такого файла</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>это не обычный файл</translation>
    </message>
    <message>
        <source>no &lt;shoot&gt; pictures</source>
        <translation>нет снимков в &lt;shoot&gt;</translation>
    </message>
    <message>
        <source>is it an old-style Papywizard file (image/coords)?</source>
        <translation>не старого ли образца этот файл Papywizard (image/coords)?</translation>
    </message>
    <message>
        <source>its &lt;shoot&gt; holds no &lt;pict&gt;: no shot was recorded</source>
        <translation>в &lt;shoot&gt; нет ни одного &lt;pict&gt;: ни один кадр не записан</translation>
    </message>
    <message>
        <source>choose the record of a finished shoot</source>
        <translation>выберите файл завершённой съёмки</translation>
    </message>
    <message>
        <source>no op_shoot command: no shot was recorded</source>
        <translation>нет команды op_shoot: ни один кадр не записан</translation>
    </message>
    <message>
        <source>is it the script that the head ran?</source>
        <translation>тот ли это сценарий, который выполнила головка?</translation>
    </message>
    <message>
        <source>correct this line, or choose another script</source>
        <translation>исправьте эту строку или выберите другой сценарий</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>строка %1: %2</translation>
    </message>
    <message>
        <source>is it the record that the head wrote?</source>
        <translation>тот ли это файл съёмки, который записала головка?</translation>
    </message>
    <message>
        <source>no such record</source>
        <translation>нет такого файла съёмки</translation>
    </message>
    <message>
        <source>check the name</source>
        <translation>проверьте имя</translation>
    </message>
    <message>
        <source>unknown head &apos;%1&apos;%2</source>
        <translation>неизвестная головка «%1»%2</translation>
    </message>
    <message>
        <source>heads: %1</source>
        <translation>головки: %1</translation>
    </message>
    <message>
        <source>no record of some of its shots can be made</source>
        <translation>нельзя создать файл съёмки только для части кадров</translation>
    </message>
    <message>
        <source>take the shots by hand</source>
        <translation>снимите эти кадры вручную</translation>
    </message>
    <message>
        <source>using %1</source>
        <translation>используется %1</translation>
    </message>
    <message>
        <source>has no import plug-in for %1</source>
        <translation>нет модуля импорта для %1</translation>
    </message>
    <message>
        <source>set --plugin to another library</source>
        <translation>возьмите другую библиотеку</translation>
    </message>
    <message>
        <source>the page refuses them</source>
        <translation>страница их отклоняет</translation>
    </message>
    <message>
        <source>make it first</source>
        <translation>сначала создайте её</translation>
    </message>
    <message>
        <source>name a file in it</source>
        <translation>выберите файл в ней</translation>
    </message>
    <message>
        <source>name a file of your own</source>
        <translation>выберите свой файл</translation>
    </message>
    <message>
        <source>cannot be written there: %1</source>
        <translation>туда нельзя записать: %1</translation>
    </message>
    <message>
        <source>choose a folder of your own</source>
        <translation>выберите свою папку</translation>
    </message>
    <message>
        <source>is one of the input files</source>
        <translation>это один из исходных файлов</translation>
    </message>
    <message>
        <source>choose another name for the result</source>
        <translation>выберите другое имя для результата</translation>
    </message>
    <message>
        <source>given twice</source>
        <translation>выбран дважды</translation>
    </message>
    <message>
        <source>name each photo once</source>
        <translation>выберите каждый снимок один раз</translation>
    </message>
    <message>
        <source>no such photo</source>
        <translation>нет такого снимка</translation>
    </message>
    <message>
        <source>rename the file: its name is not in UTF-8</source>
        <translation>переименуйте файл: его имя не в UTF-8</translation>
    </message>
    <message>
        <source>name the photos in it, e.g. %1/*.jpg</source>
        <translation>выберите снимки в ней, например %1/*.jpg</translation>
    </message>
    <message>
        <source>name photos only</source>
        <translation>выбирайте только снимки</translation>
    </message>
    <message>
        <source>cannot be read: permission denied</source>
        <translation>не читается: нет прав доступа</translation>
    </message>
    <message>
        <source>copy it to a folder of your own</source>
        <translation>скопируйте в свою папку</translation>
    </message>
    <message>
        <source>are photos missing, or did the shoot stop early?</source>
        <translation>не хватает снимков или съёмка закончилась раньше времени?</translation>
    </message>
    <message>
        <source>are test shots among the photos?</source>
        <translation>нет ли среди снимков пробных?</translation>
    </message>
    <message>
        <source>records %1, %2 given</source>
        <translation>записано: %1, выбрано: %2</translation>
    </message>
    <message>
        <source>has no capture time to order by</source>
        <translation>нет времени съёмки, по которому можно упорядочить</translation>
    </message>
    <message>
        <source>use --order name or --order given</source>
        <translation>упорядочите по именам</translation>
    </message>
    <message>
        <source>the record</source>
        <translation>в файле съёмки</translation>
    </message>
    <message>
        <source>the photos&apos; EXIF data</source>
        <translation>в EXIF снимков</translation>
    </message>
    <message>
        <source>the photos&apos; EXIF data or the record</source>
        <translation>ни в EXIF снимков, ни в файле съёмки</translation>
    </message>
    <message>
        <source>focal length</source>
        <translation>фокусное расстояние</translation>
    </message>
    <message>
        <source>not known from %1</source>
        <translation>не указано %1</translation>
    </message>
    <message>
        <source>give it with --focal MM (35 mm equivalent)</source>
        <translation>вернитесь и введите его (в эквиваленте 35 мм)</translation>
    </message>
    <message>
        <source>focal length %1 (EXIF) against %2 (record); using EXIF; choose with --focal</source>
        <translation>фокусное расстояние %1 (EXIF), а в файле съёмки %2 (взято из EXIF)</translation>
    </message>
    <message>
        <source>%1 of the photos name no focal length; using that of the others; choose with --focal</source>
        <translation>снимков без фокусного расстояния: %1; взято фокусное расстояние остальных</translation>
    </message>
    <message>
        <source>%1 lens (EXIF) against %2 (record); using EXIF; choose with --lens</source>
        <translation>объектив: %1 (EXIF), а в файле съёмки %2 (взято из EXIF)</translation>
    </message>
    <message>
        <source>the photos name focal lengths from %1 to %2; using their median; choose with --focal</source>
        <translation>в снимках указаны фокусные расстояния от %1 до %2; взято среднее из них (медиана)</translation>
    </message>
    <message>
        <source>plug-in page</source>
        <translation>страница модуля</translation>
    </message>
    <message>
        <source>has no &apos;%1&apos;</source>
        <translation>нет элемента «%1»</translation>
    </message>
    <message>
        <source>is this library of another version? set --plugin</source>
        <translation>не от другой ли версии эта библиотека?</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3</source>
        <translation>%1 не между %2 и %3</translation>
    </message>
    <message>
        <source>its photo button opens no file dialog</source>
        <translation>кнопка снимков не открывает диалог выбора файлов</translation>
    </message>
    <message>
        <source> (and %1 more of %2 photos)</source>
        <translation> (и ещё %1 из %2 снимков)</translation>
    </message>
    <message>
        <source>cannot read (%1)%2</source>
        <translation>не читается (%1)%2</translation>
    </message>
    <message>
        <source>is it a photo? try &apos;panohost check&apos;</source>
        <translation>снимок ли это?</translation>
    </message>
    <message>
        <source>the page does not accept them</source>
        <translation>страница их не принимает</translation>
    </message>
    <message>
        <source>try &apos;panohost check&apos;</source>
        <translation>проверьте снимки</translation>
    </message>
    <message>
        <source>refused by the plug-in</source>
        <translation>модуль отклонил</translation>
    </message>
    <message>
        <source>temporary links to the photos</source>
        <translation>временные ссылки на снимки</translation>
    </message>
    <message>
        <source>is the temporary folder full? set TMPDIR</source>
        <translation>не заполнена ли временная папка? укажите в TMPDIR другую</translation>
    </message>
    <message>
        <source>of no shot</source>
        <translation>ни один из кадров</translation>
    </message>
    <message>
        <source>shot %1</source>
        <translation>кадр %1</translation>
    </message>
    <message>
        <source>: %1 may be %2 (%3 %) or %4</source>
        <translation>: %1 — возможно, %2 (%3 %) или %4</translation>
    </message>
    <message>
        <source>which photo belongs to which shot cannot be told surely%1; take photos of other shoots away, or say the order with --order name, time or given</source>
        <translation>нельзя точно сказать, какой снимок к какому кадру относится%1; уберите снимки других съёмок</translation>
    </message>
    <message>
        <source>%1 for shot %2</source>
        <translation>%1 для кадра %2</translation>
    </message>
    <message>
        <source>the camera took several photos for each shot: the last one of each is used</source>
        <translation>камера сделала по нескольку снимков на кадр: взят последний из каждых</translation>
    </message>
    <message>
        <source>taken more than once; used: %1</source>
        <translation>сняты больше одного раза; взяты: %1</translation>
    </message>
    <message>
        <source>the camera&apos;s counter began again among these photos: they are ordered by time</source>
        <translation>счётчик камеры начался среди этих снимков заново: они упорядочены по времени</translation>
    </message>
    <message>
        <source>photo numbers begin again (another card?): they are ordered by time</source>
        <translation>номера снимков начинаются заново (другая карта?): снимки упорядочены по времени</translation>
    </message>
    <message>
        <source>names and times disagree: photos are ordered by time</source>
        <translation>имена и время расходятся: снимки упорядочены по времени</translation>
    </message>
    <message>
        <source>no photo for %1%2</source>
        <translation>нет снимка: %1%2</translation>
    </message>
    <message>
        <source> (was the shoot stopped?)</source>
        <translation> (съёмку прервали?)</translation>
    </message>
    <message>
        <source>take them again if you can</source>
        <translation>если возможно, снимите их ещё раз</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 мин %2 с</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 час</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 ч</translation>
    </message>
    <message>
        <source>the camera&apos;s clock is %1 ahead of the head&apos;s</source>
        <translation>часы камеры спешат относительно часов головки на %1</translation>
    </message>
    <message>
        <source>the camera&apos;s clock is %1 behind the head&apos;s</source>
        <translation>часы камеры отстают от часов головки на %1</translation>
    </message>
    <message>
        <source>the camera&apos;s clock gains %1 s in a minute</source>
        <translation>часы камеры уходят вперёд на %1 с в минуту</translation>
    </message>
    <message>
        <source>the camera&apos;s clock loses %1 s in a minute</source>
        <translation>часы камеры отстают на %1 с в минуту</translation>
    </message>
    <message>
        <source>the same picture: %1</source>
        <translation>один и тот же снимок: %1</translation>
    </message>
    <message>
        <source>before the first shot (a test?): left out</source>
        <translation>до первого кадра (проба?): пропущено</translation>
    </message>
    <message>
        <source>of another size: left out</source>
        <translation>другой размер: пропущено</translation>
    </message>
    <message>
        <source>not of this shoot: left out</source>
        <translation>не от этой съёмки: пропущено</translation>
    </message>
    <message>
        <source>which photo belongs to which shot could not be checked (%1): they are taken in the order of their names</source>
        <translation>не удалось проверить, какой снимок к какому кадру относится (%1): взяты по порядку имён</translation>
    </message>
    <message>
        <source>names, times and counts</source>
        <translation>имена, время и количество</translation>
    </message>
    <message>
        <source>names and counts</source>
        <translation>имена и количество</translation>
    </message>
    <message>
        <source>the record tells no times</source>
        <translation>в файле съёмки нет времени</translation>
    </message>
    <message>
        <source>the photos tell no times</source>
        <translation>в снимках нет времени</translation>
    </message>
    <message>
        <source>the times of photos and record do not agree</source>
        <translation>время снимков и файла съёмки расходится</translation>
    </message>
    <message>
        <source>%1 left out: other files of the same photos are used, JPEG before RAW</source>
        <translation>пропущено (%1): взяты другие файлы тех же снимков, JPEG предпочтительнее RAW</translation>
    </message>
    <message>
        <source>not opened: %1 agree</source>
        <translation>не открывались: %1 сходятся</translation>
    </message>
    <message>
        <source>the grid</source>
        <translation>сетка</translation>
    </message>
    <message>
        <source>none of its shots has a photo</source>
        <translation>ни у одного из её кадров нет снимка</translation>
    </message>
    <message>
        <source>are these the photos of this shoot?</source>
        <translation>от этой ли съёмки эти снимки?</translation>
    </message>
    <message>
        <source>was made of other photos</source>
        <translation>составлен из других снимков</translation>
    </message>
    <message>
        <source>%1 between %2</source>
        <translation>%2, между ними %1</translation>
    </message>
    <message>
        <source>; %1 without a neighbour near enough</source>
        <translation>; %1 без достаточно близкого соседа</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1–%2</translation>
    </message>
    <message>
        <source>shots %1</source>
        <translation>кадры %1</translation>
    </message>
    <message>
        <source>, exposure %1 of %2</source>
        <translation>, экспозиция %1 из %2</translation>
    </message>
    <message>
        <source>no photo for shot %1 (yaw %2, pitch %3%4)</source>
        <translation>нет снимка для кадра %1 (рыскание %2, тангаж %3%4)</translation>
    </message>
    <message>
        <source>no photo for %1</source>
        <translation>нет снимка: %1</translation>
    </message>
    <message>
        <source>panorama of %1 x %2 pixels: takes about %3 in %4 (%5 are free) and %6 of memory</source>
        <translation>панорама %1 x %2 пикселей: займёт около %3 в %4 (свободно %5) и %6 памяти</translation>
    </message>
    <message>
        <source>the light is exact to a fraction of a percent, but where every exposure clips it or shows noise</source>
        <translation>значения яркости точны до долей процента, кроме мест, где все экспозиции пересвечены или шумят</translation>
    </message>
    <message>
        <source>the light is good for looking at, not for measuring: the photos&apos; curve is taken for sRGB&apos;s; RAW files, or TIFFs without a curve and --linear, make it exact</source>
        <translation>значения яркости годятся для просмотра, но не для измерений: кривая снимков принята за кривую sRGB; файлы RAW дают точные значения</translation>
    </message>
    <message>
        <source>is to hold what is kept of this panorama, and holds something else</source>
        <translation>здесь должны храниться рабочие файлы этой панорамы, а лежит что-то другое</translation>
    </message>
    <message>
        <source>rename it, or choose another name with -o</source>
        <translation>переименуйте или выберите другое имя</translation>
    </message>
    <message>
        <source>the project asks for another projection; the panorama becomes equirectangular</source>
        <translation>проект требует другой проекции; панорама будет равнопромежуточной</translation>
    </message>
    <message>
        <source>masks that include a region are passed over, only those that exclude one count</source>
        <translation>маски, включающие область, не учитываются, действуют только исключающие</translation>
    </message>
    <message>
        <source>--centre turns full turns only; this part of the sphere stays as it is</source>
        <translation>повернуть можно только полную круговую панораму; эта часть сферы остаётся как есть</translation>
    </message>
    <message>
        <source>%1: cannot be read to its end; copy it from the card again, or take it again</source>
        <translation>%1: не читается до конца; скопируйте с карты ещё раз или переснимите</translation>
    </message>
    <message>
        <source>%1 of them are RAW files</source>
        <translation>из них в формате RAW: %1</translation>
    </message>
    <message>
        <source>add --raw-converter dcraw, dcraw_emu, darktable-cli or rawtherapee-cli, or give JPEGs or TIFFs of them</source>
        <translation>установите dcraw, dcraw_emu, darktable-cli или rawtherapee-cli либо возьмите JPEG или TIFF этих снимков</translation>
    </message>
    <message>
        <source>photos stay where the head says: optimisation is skipped</source>
        <translation>снимки остаются там, где указала головка: оптимизация пропущена</translation>
    </message>
    <message>
        <source>what was finished is kept in %1: the same command goes on from there</source>
        <translation>то, что готово, сохранено в %1: «Создать панораму» продолжит с этого места</translation>
    </message>
    <message>
        <source>photos lie where the record puts them in these commands: nothing is aligned yet</source>
        <translation>снимки здесь пока лежат по файлу съёмки: выравнивания ещё не было</translation>
    </message>
    <message>
        <source>a Hugin project cannot hold a file name with quotation marks or line ends, and no link to it can be made in %1</source>
        <translation>в проекте Hugin имя файла не может содержать кавычки или перевод строки, а создать ссылку на такой файл в %1 нельзя</translation>
    </message>
    <message>
        <source>rename the file</source>
        <translation>переименуйте файл</translation>
    </message>
    <message>
        <source>name dcraw, dcraw_emu, darktable-cli or rawtherapee-cli, or a command with %i for the RAW file and %o for the TIFF</source>
        <translation>укажите dcraw, dcraw_emu, darktable-cli или rawtherapee-cli либо команду с %i для файла RAW и %o для TIFF</translation>
    </message>
    <message>
        <source>this RAW converter was not found</source>
        <translation>этот конвертер RAW не найден</translation>
    </message>
    <message>
        <source>is its name right? of those known: apt install dcraw, libraw-bin, darktable or rawtherapee</source>
        <translation>верно ли имя? из известных: apt install dcraw, libraw-bin, darktable или rawtherapee</translation>
    </message>
    <message>
        <source>the camera chose the white balance of %1 RAW files one by one, and %2 follows it: their colours may differ; dcraw takes the first one&apos;s for all</source>
        <translation>камера выбирала баланс белого для каждого файла RAW отдельно (таких %1), и %2 следует ей: цвета могут различаться; dcraw берёт для всех баланс первого</translation>
    </message>
    <message>
        <source>this copy of a photo cannot be made</source>
        <translation>не удаётся создать эту копию снимка</translation>
    </message>
    <message>
        <source>is the photo readable? is the disk full?</source>
        <translation>читается ли снимок? не заполнен ли диск?</translation>
    </message>
    <message>
        <source>, of %1</source>
        <translation>, файл %1</translation>
    </message>
    <message>
        <source>it left no whole picture of %1</source>
        <translation>полного изображения из %1 не получилось</translation>
    </message>
    <message>
        <source>can it read this camera&apos;s files? is the disk full?</source>
        <translation>читает ли он файлы этой камеры? не заполнен ли диск?</translation>
    </message>
    <message>
        <source>names no program</source>
        <translation>не указана программа</translation>
    </message>
    <message>
        <source>does not say where its files go</source>
        <translation>не указано, куда записывать файлы</translation>
    </message>
    <message>
        <source>row %1 of column %2</source>
        <translation>строка %1 в столбце %2</translation>
    </message>
    <message>
        <source>the grid reaches around the sphere: overlap or rows do not fit this lens</source>
        <translation>сетка замыкается вокруг сферы: перекрытие или число строк не подходит к этому объективу</translation>
    </message>
    <message numerus="yes">
        <source>%n column</source>
        <translation>
            <numerusform>%n столбец</numerusform>
            <numerusform>%n столбца</numerusform>
            <numerusform>%n столбцов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file</source>
        <translation>
            <numerusform>%n файл</numerusform>
            <numerusform>%n файла</numerusform>
            <numerusform>%n файлов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link</source>
        <translation>
            <numerusform>%n связь</numerusform>
            <numerusform>%n связи</numerusform>
            <numerusform>%n связей</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo</source>
        <translation>
            <numerusform>%n снимок</numerusform>
            <numerusform>%n снимка</numerusform>
            <numerusform>%n снимков</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n position</source>
        <translation>
            <numerusform>%n позиция</numerusform>
            <numerusform>%n позиции</numerusform>
            <numerusform>%n позиций</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row</source>
        <translation>
            <numerusform>%n строка</numerusform>
            <numerusform>%n строки</numerusform>
            <numerusform>%n строк</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shot</source>
        <translation>
            <numerusform>%n кадр</numerusform>
            <numerusform>%n кадра</numerusform>
            <numerusform>%n кадров</numerusform>
        </translation>
    </message>
    <message>
        <source>the description</source>
        <translation>описание</translation>
    </message>
    <message>
        <source>%1 recorded directions for %2 photos at %3 positions</source>
        <translation>записано направлений: %1, снимков: %2, позиций: %3</translation>
    </message>
    <message>
        <source>its direction is not a number</source>
        <translation>направление — не число</translation>
    </message>
    <message>
        <source>correct the record</source>
        <translation>исправьте файл съёмки</translation>
    </message>
    <message>
        <source>position %1</source>
        <translation>позиция %1</translation>
    </message>
    <message>
        <source>has no photo</source>
        <translation>нет снимка</translation>
    </message>
    <message>
        <source>holds no photos</source>
        <translation>нет снимков</translation>
    </message>
    <message>
        <source>name a file that &apos;panohost import --json&apos; has written</source>
        <translation>выберите описание, сохранённое этой программой</translation>
    </message>
    <message>
        <source>cannot read (not a photo?)</source>
        <translation>не читается (не снимок?)</translation>
    </message>
    <message>
        <source>its pixels cannot be decoded (a RAW file?)</source>
        <translation>пиксели не читаются (файл RAW?)</translation>
    </message>
    <message>
        <source>too large to decode</source>
        <translation>слишком большой, не прочитать</translation>
    </message>
    <message>
        <source>give it with --focal</source>
        <translation>вернитесь и введите его</translation>
    </message>
    <message>
        <source>neither the record nor the photos name it</source>
        <translation>не указано ни в файле съёмки, ни в снимках</translation>
    </message>
    <message>
        <source>no lens has %1 mm</source>
        <translation>объективов %1 мм не бывает</translation>
    </message>
    <message>
        <source>its size in pixels is not known</source>
        <translation>размер в пикселях неизвестен</translation>
    </message>
    <message>
        <source>can another program open it? leave it out if not</source>
        <translation>открывается ли в другой программе? если нет, уберите</translation>
    </message>
    <message>
        <source>the photos have %1 different sizes in pixels</source>
        <translation>у снимков разные размеры в пикселях (%1)</translation>
    </message>
    <message>
        <source>a Hugin project cannot hold a file name with quotation marks or line ends</source>
        <translation>в проекте Hugin имя файла не может содержать кавычки или перевод строки</translation>
    </message>
    <message>
        <source>%1 of %2 photos name no exposure; %3 is assumed</source>
        <translation>снимков без экспозиции: %1 из %2; принято %3</translation>
    </message>
    <message>
        <source>larger than %1 bytes</source>
        <translation>больше %1 байт</translation>
    </message>
    <message>
        <source>give the name of a file</source>
        <translation>укажите имя файла</translation>
    </message>
    <message>
        <source>set --plugin or PANOHOST_PLUGIN_PATH to libXPanoHead.so</source>
        <translation>укажите в PANOHOST_PLUGIN_PATH путь к libXPanoHead.so</translation>
    </message>
    <message>
        <source>no such file or folder</source>
        <translation>нет такого файла или папки</translation>
    </message>
    <message>
        <source>import plug-ins</source>
        <translation>модули импорта</translation>
    </message>
    <message>
        <source>no plug-in library in %1</source>
        <translation>нет библиотеки модулей в %1</translation>
    </message>
    <message>
        <source>is not a Qt plug-in library</source>
        <translation>это не библиотека модулей Qt</translation>
    </message>
    <message>
        <source>its interface is &apos;%1&apos;, &apos;%2&apos; is needed</source>
        <translation>её интерфейс — «%1», а нужен «%2»</translation>
    </message>
    <message>
        <source>offers no list of plug-ins</source>
        <translation>не даёт списка модулей</translation>
    </message>
    <message>
        <source>holds no import plug-in</source>
        <translation>нет модуля импорта</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>не удаётся записать</translation>
    </message>
    <message>
        <source>is of another size than the others of its bracket</source>
        <translation>размер не такой, как у остальных снимков серии</translation>
    </message>
    <message>
        <source>is no warped light</source>
        <translation>нет преобразованных значений яркости</translation>
    </message>
    <message>
        <source>these photos of the project, and %1 more, are not there any more</source>
        <translation>этих снимков проекта и ещё %1 больше нет</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>больше нет</translation>
    </message>
    <message>
        <source>put the photos back where they were, or import them again</source>
        <translation>верните снимки на прежнее место или импортируйте их снова</translation>
    </message>
    <message>
        <source>%1 has %2 bits a colour, %3 has %4, and all must be alike to be blended</source>
        <translation>%1 — %2 бит на цвет, %3 — %4, а для сшивки все должны быть одинаковыми</translation>
    </message>
    <message>
        <source>convert or develop them alike</source>
        <translation>преобразуйте или проявите их одинаково</translation>
    </message>
    <message>
        <source>was not written to its end</source>
        <translation>записано не до конца</translation>
    </message>
    <message>
        <source>is there enough room in %1?</source>
        <translation>хватает ли места в %1?</translation>
    </message>
    <message>
        <source>nona, of %1</source>
        <translation>nona, файл %1</translation>
    </message>
    <message>
        <source>made no picture of %1</source>
        <translation>изображения из %1 не получилось</translation>
    </message>
    <message>
        <source>is it a photo that other programs open?</source>
        <translation>открывается ли этот снимок в других программах?</translation>
    </message>
    <message>
        <source>size of the panorama</source>
        <translation>размер панорамы</translation>
    </message>
    <message>
        <source>%1 x %2 pixels cannot be made</source>
        <translation>%1 x %2 пикселей создать нельзя</translation>
    </message>
    <message>
        <source>choose another --size</source>
        <translation>выберите другой размер</translation>
    </message>
    <message>
        <source>the stitch needs %1 there, %2 are free</source>
        <translation>для панорамы там нужно %1, свободно %2</translation>
    </message>
    <message>
        <source>make room, name another place with -o, or choose a smaller --size</source>
        <translation>освободите место, выберите другое место или меньший размер</translation>
    </message>
    <message>
        <source>memory</source>
        <translation>память</translation>
    </message>
    <message>
        <source>the stitch needs about %1, %2 are available</source>
        <translation>для панорамы нужно около %1, доступно %2</translation>
    </message>
    <message>
        <source>close other programs, or choose --jobs 1 or a smaller --size</source>
        <translation>закройте другие программы или выберите меньший размер</translation>
    </message>
    <message>
        <source>try it by itself</source>
        <translation>попробуйте эту программу отдельно</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 мин</translation>
    </message>
    <message>
        <source>it was killed, perhaps because memory ran out</source>
        <translation>программа завершена принудительно, возможно, не хватило памяти</translation>
    </message>
    <message>
        <source>close other programs and try again</source>
        <translation>закройте другие программы и повторите</translation>
    </message>
    <message>
        <source>it crashed (signal %1)</source>
        <translation>сбой программы (сигнал %1)</translation>
    </message>
    <message>
        <source>%1 and said: %2</source>
        <translation>%1, сообщение: %2</translation>
    </message>
    <message>
        <source> if so: %1</source>
        <translation> если да: %1</translation>
    </message>
    <message>
        <source>this program is needed for stitching and was not found</source>
        <translation>эта программа нужна для сборки панорамы, но не найдена</translation>
    </message>
    <message>
        <source>cannot be started (%1)</source>
        <translation>не удаётся запустить (%1)</translation>
    </message>
    <message>
        <source>it was stopped since it did nothing for %1</source>
        <translation>работа остановлена: программа ничего не делала %1</translation>
    </message>
    <message>
        <source>is the machine very busy, or a network drive away? try again</source>
        <translation>не перегружен ли компьютер, доступен ли сетевой диск? повторите</translation>
    </message>
    <message>
        <source>it failed without a message</source>
        <translation>ошибка без сообщения</translation>
    </message>
    <message>
        <source>it failed and said: %1</source>
        <translation>ошибка, сообщение: %1</translation>
    </message>
    <message>
        <source>is the disk full, or a file damaged that it reads?</source>
        <translation>не заполнен ли диск, не повреждён ли читаемый файл?</translation>
    </message>
    <message>
        <source>it failed, and there is hardly any room left on the disk at %1 (%2)</source>
        <translation>ошибка, а на диске %1 почти не осталось места (%2)</translation>
    </message>
    <message>
        <source>make room there and go on with the same command; nothing is lost</source>
        <translation>освободите там место и нажмите «Создать панораму» ещё раз; ничего не пропадёт</translation>
    </message>
    <message>
        <source>was the disk full? remove the file and try again</source>
        <translation>не был ли заполнен диск? удалите файл и повторите</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>не читается</translation>
    </message>
    <message>
        <source>is no picture of 8, 16 or floating bits</source>
        <translation>это не изображение с 8 или 16 битами или с плавающей запятой</translation>
    </message>
    <message>
        <source>is cut off</source>
        <translation>файл обрезан</translation>
    </message>
    <message>
        <source>cannot be mapped into memory</source>
        <translation>не удаётся отобразить в память</translation>
    </message>
    <message>
        <source>is the disk full, or the folder read-only?</source>
        <translation>не заполнен ли диск, не защищена ли папка от записи?</translation>
    </message>
    <message>
        <source>%1, process %2 on %3</source>
        <translation>программой %1 (процесс %2 на %3)</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>другой программой</translation>
    </message>
    <message>
        <source>there is a file of that name: rename it, or choose another name with -o</source>
        <translation>есть файл с таким именем: переименуйте его или выберите другое имя</translation>
    </message>
    <message>
        <source>is in use by %1</source>
        <translation>занято %1</translation>
    </message>
    <message>
        <source>wait for it to end, or choose another name with -o</source>
        <translation>дождитесь её завершения или выберите другое имя</translation>
    </message>
</context>
<context>
    <name>PanoHost::SavedList</name>
    <message>
        <source>Nothing saved yet.</source>
        <translation>Пока ничего не сохранено.</translation>
    </message>
    <message>
        <source>Saved files</source>
        <translation>Сохранённые файлы</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>Не выполнено</translation>
    </message>
    <message>
        <source>Saved %1 in %2</source>
        <translation>Файл %1 сохранён в %2</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Показать</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>Показать %1 в папке</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Сохранено</translation>
    </message>
    <message>
        <source>The folder %1 is not there any more. Was it moved, or its disk unplugged?</source>
        <translation>Папки %1 больше нет. Возможно, её переместили или отключили её диск?</translation>
    </message>
    <message>
        <source>No program could show the folder. It is %1</source>
        <translation>Ни одна программа не смогла показать папку. Это %1</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootDesk</name>
    <message>
        <source>shot %1: yaw %2, pitch %3</source>
        <translation>кадр %1: рыскание %2, тангаж %3</translation>
    </message>
    <message>
        <source>The photos do not stand at their shots: go back, and press Fix.</source>
        <translation>Снимки не соответствуют своим кадрам: вернитесь и нажмите «Исправить».</translation>
    </message>
    <message>
        <source>Another file in place of %1</source>
        <translation>Другой файл вместо %1</translation>
    </message>
    <message>
        <source>Shots without a photo</source>
        <translation>Кадры без снимка</translation>
    </message>
    <message>
        <source>Take these shots again if you can. The panorama is made without them otherwise.</source>
        <translation>Если возможно, снимите эти кадры ещё раз. Иначе панорама будет создана без них.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootPanel</name>
    <message>
        <source>Flat</source>
        <translation>Развёртка</translation>
    </message>
    <message>
        <source>Show the photos on a map</source>
        <translation>Показать снимки на карте</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>Сфера</translation>
    </message>
    <message>
        <source>Look around from where the camera stood</source>
        <translation>Осмотреться с места, где стояла камера</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Связи</translation>
    </message>
    <message>
        <source>Show which photos are linked to each other</source>
        <translation>Показать, какие снимки связаны друг с другом</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Пробелы</translation>
    </message>
    <message>
        <source>Hatch what no photo shows</source>
        <translation>Заштриховать то, чего нет ни на одном снимке</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Вписать</translation>
    </message>
    <message>
        <source>Show the whole shoot</source>
        <translation>Показать всю съёмку</translation>
    </message>
    <message>
        <source>The focal length is not known: photos are drawn as by 50 mm</source>
        <translation>Фокусное расстояние неизвестно: снимки показаны как для 50 мм</translation>
    </message>
    <message>
        <source>No gaps</source>
        <translation>Пробелов нет</translation>
    </message>
    <message>
        <source>Linked to no other photo: %1</source>
        <translation>Не связаны с другими снимками: %1</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootStrip</name>
    <message>
        <source>To look at</source>
        <translation>Требует внимания</translation>
    </message>
    <message>
        <source>Not yet known</source>
        <translation>Пока неизвестно</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>В порядке</translation>
    </message>
    <message>
        <source>About this shoot</source>
        <translation>Об этой съёмке</translation>
    </message>
    <message>
        <source>Show what is known about this shoot</source>
        <translation>Показать, что известно об этой съёмке</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> мм</translation>
    </message>
    <message>
        <source>Focal length, as for 35 mm film</source>
        <translation>Фокусное расстояние в эквиваленте 35 мм</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootView</name>
    <message>
        <source>Picture of the shoot: %1, %2</source>
        <translation>Изображение съёмки: %1, %2</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 снимок</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>снимков: %1</translation>
    </message>
    <message>
        <source>1 position</source>
        <translation>1 позиция</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>позиций: %1</translation>
    </message>
    <message>
        <source>position %1 of %2</source>
        <translation>позиция %1 из %2</translation>
    </message>
    <message>
        <source>shot %1 of %2</source>
        <translation>кадр %1 из %2</translation>
    </message>
    <message>
        <source>first of %1 photos here</source>
        <translation>первый из %1 снимков здесь</translation>
    </message>
    <message>
        <source>off by %1 pixels</source>
        <translation>ошибка %1 пикселя</translation>
    </message>
    <message>
        <source>no control points</source>
        <translation>нет контрольных точек</translation>
    </message>
    <message>
        <source>linked to no other photo</source>
        <translation>не связан с другими снимками</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>не читается</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Off by, pixels</source>
        <translation>Ошибка, пиксели</translation>
    </message>
</context>
<context>
    <name>PanoHost::StripTexts</name>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>waits for the head&apos;s record</source>
        <translation>ждёт файл съёмки головки</translation>
    </message>
    <message>
        <source>waits for another record: this one is of %1</source>
        <translation>ждёт другой файл съёмки: этот — %1</translation>
    </message>
    <message>
        <source>waits for a record that can be read</source>
        <translation>ждёт файл съёмки, который можно прочитать</translation>
    </message>
    <message>
        <source>waits for the photos</source>
        <translation>ждёт снимки</translation>
    </message>
    <message>
        <source>waits until the photos have been read</source>
        <translation>ждёт, пока снимки будут прочитаны</translation>
    </message>
    <message>
        <source>waits: the photos do not stand at their shots</source>
        <translation>ждёт: снимки не соответствуют своим кадрам</translation>
    </message>
    <message>
        <source>waits: %1 for %2</source>
        <translation>ждёт: %1, %2</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 снимок</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>снимков — %1</translation>
    </message>
    <message>
        <source>1 shot</source>
        <translation>1 кадр</translation>
    </message>
    <message>
        <source>%1 shots</source>
        <translation>кадров — %1</translation>
    </message>
    <message>
        <source>waits: not all photos can be used</source>
        <translation>ждёт: не все снимки пригодны</translation>
    </message>
    <message>
        <source>waits: %1</source>
        <translation>ждёт: %1</translation>
    </message>
    <message>
        <source>waits: the page does not accept these photos</source>
        <translation>ждёт: страница не принимает эти снимки</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Файл съёмки</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Сетка</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Снимки</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>непригодных: %1 (%2)</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Порядок</translation>
    </message>
    <message>
        <source>each photo stands at its shot</source>
        <translation>каждый снимок соответствует своему кадру</translation>
    </message>
    <message>
        <source>the photos do not stand at their shots</source>
        <translation>снимки не соответствуют своим кадрам</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Фокусное расстояние</translation>
    </message>
    <message>
        <source>%1, as the last time with such photos</source>
        <translation>%1, как в прошлый раз с такими снимками</translation>
    </message>
    <message>
        <source>%1, as entered</source>
        <translation>%1, как введено</translation>
    </message>
    <message>
        <source>%1, from the record: the photos name none</source>
        <translation>%1, из файла съёмки: в снимках не указано</translation>
    </message>
    <message>
        <source>no photo names it: enter it, as for 35 mm film</source>
        <translation>не указано ни в одном снимке: введите в эквиваленте 35 мм</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Недостающие</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Паузы</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Связи</translation>
    </message>
    <message>
        <source>other records: %1</source>
        <translation>другие файлы съёмки: %1</translation>
    </message>
    <message>
        <source>results of this program: %1</source>
        <translation>результаты этой программы: %1</translation>
    </message>
    <message>
        <source>Not taken</source>
        <translation>Не принято</translation>
    </message>
    <message>
        <source>1 thing to look at</source>
        <translation>Требует внимания: 1</translation>
    </message>
    <message>
        <source>%1 things to look at</source>
        <translation>Требует внимания: %1</translation>
    </message>
    <message>
        <source>Looking at the photos...</source>
        <translation>Просмотр снимков...</translation>
    </message>
    <message>
        <source>Everything agrees</source>
        <translation>Всё сходится</translation>
    </message>
    <message>
        <source>Choose record...</source>
        <translation>Выбрать файл съёмки...</translation>
    </message>
    <message>
        <source>Choose photos...</source>
        <translation>Выбрать снимки...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Replace...</source>
        <translation>Заменить...</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Исправить</translation>
    </message>
    <message>
        <source>Switch head</source>
        <translation>Сменить головку</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Ввести</translation>
    </message>
    <message>
        <source>Show shots...</source>
        <translation>Показать кадры...</translation>
    </message>
</context>
</TS>
