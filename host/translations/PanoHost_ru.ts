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
        <source>or choose a smaller size</source>
        <translation>или выберите меньший размер</translation>
    </message>
    <message>
        <source>choose a smaller size</source>
        <translation>выберите меньший размер</translation>
    </message>
    <message>
        <source>choose another size</source>
        <translation>выберите другой размер</translation>
    </message>
    <message>
        <source>RAW files make it exact</source>
        <translation>файлы RAW дают точные значения</translation>
    </message>
    <message>
        <source>press Make panorama again</source>
        <translation>нажмите «Создать панораму» ещё раз</translation>
    </message>
    <message>
        <source>go back and enter it</source>
        <translation>вернитесь и введите его</translation>
    </message>
    <message>
        <source>Make panorama goes on from here</source>
        <translation>«Создать панораму» продолжит отсюда</translation>
    </message>
    <message>
        <source>%1 x %2 pixels at most; takes up to %3 of the disk and %4 of memory.</source>
        <translation>Не более %1 x %2 пикселей; займёт до %3 на диске и %4 памяти.</translation>
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
    <name>PanoHost::ImportWizard</name>
    <message>
        <source>Import a panorama</source>
        <translation>Импорт панорамы</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
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
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>Нас&amp;тройки...</translation>
    </message>
    <message>
        <source>&amp;About panohost</source>
        <translation>&amp;О программе panohost</translation>
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
        <source>Language and thumbnails change with the next start.</source>
        <translation>Язык и миниатюры изменятся при следующем запуске.</translation>
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
