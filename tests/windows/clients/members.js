// Every property of the list, SpEv, Error and ListItem by name, through cscript. Each line of the
// tables is a property with its default and another value: no other property may follow it.
var bad = 0, good = 0;
function check(what, got, want) {
  if (String(got) === String(want)) { good++; return; }
  bad++;
  WScript.Echo("FAIL " + what + ": got [" + got + "] want [" + want + "]");
}

var properties = [
  ["ForeColor", 0, 255], ["BackColor", 0xFFFFFF, 0x00FF00], ["Enabled", true, false],
  ["ClickOnIndexChange", false, true], ["BorderColor", 0, 7], ["HoverSelect", false, true],
  ["Style", 0, 3], ["FullRowSelect", true, false], ["AllowEdit", false, true],
  ["ValueColor", 0xFF0000, 9], ["IconSelect", true, false], ["BorderVisible", true, false],
  ["IndentTop", 3, 4.5], ["IndentLeft", 3, 5.5], ["IndentRight", 3, 6.5], ["IndentBottom", 3, 7.5],
  ["DistPicText", 2, 8.5], ["AutoCheckScroll", true, false], ["IconW", 16, 20], ["IconH", 16, 21],
  ["GridLines", false, true], ["GridLineColor", 0xC0C0C0, 11], ["MultiSelect", false, true],
  ["ShowFocusRect", false, true], ["WheelFunction", 0, 1], ["WheelScrollLines", 1, 5],
  ["MinHeight", 0, 30], ["AutoRedraw", true, false], ["ScrollBars", 2, 3],
  ["AllowItemMoving", false, true], ["ScrollColorStyle", 0, 2], ["ColorStyle", 0, 99]];

var items = [
  ["ItemText", "first", "t"], ["ItemChecked", false, true],
  ["ItemForeColorSelect", "def", 13], ["ItemBackColorSelect", "def", 14],
  ["ItemAllowEdit", false, true], ["ItemAlignment", 0, 2], ["ItemEnabled", true, false],
  ["ItemTag", "", "tag"], ["ItemForeColorDis", 0x80000011 | 0, 15],
  ["ItemBackColorDis", 0x80000016 | 0, 16], ["ItemBold", false, true],
  ["ItemItalic", false, true], ["ItemUnderline", false, true], ["ItemKey", "", "key"]];

var record = [
  ["Checked", false, true], ["ForeColor", undefined, 1], ["BackColor", undefined, 2],
  ["ForeColorSelect", undefined, "def"], ["BackColorSelect", undefined, 4], ["ForeColorDis", 0, 5],
  ["BackColorDis", 0, 6], ["AllowEdit", false, true], ["Text", "", "text"], ["Enabled", false, true],
  ["Selected", false, true], ["Tag", undefined, "tag"], ["Alignment", 0, 1], ["Bold", false, true],
  ["Italic", false, true], ["Underline", false, true], ["Key", "", "key"]];

/// Sets each property in turn; all others have to stay as they are.
function checkTable(object, table) {
  for (var i = 0; i < table.length; i++) {
    object[table[i][0]] = table[i][2];
    for (var j = 0; j < table.length; j++)
      check(table[j][0] + " after " + table[i][0], object[table[j][0]],
            table[j][j <= i ? 2 : 1]);
  }
}

var helper = new ActiveXObject("NvListTest.Helper");
var list = helper.Make("Norvane.nvList"), c = helper.Watch(list);
checkTable(c, properties);
c.ColorStyle = 1;
check("ColorStyle sets ScrollColorStyle", c.ScrollColorStyle, 1);

c.ItemsAdd("first");
for (var i = 0; i < items.length; i++) {
  check("default of " + items[i][0], c[items[i][0]](0), items[i][1]);
  c[items[i][0]](0) = items[i][2];
  for (var j = 0; j < items.length; j++)
    check(items[j][0] + " after " + items[i][0], c[items[j][0]](0), items[j][j <= i ? 2 : 1]);
}
c.ItemForeColor(0) = 17; c.ItemBackColor(0) = 18;
check("ItemForeColor", c.ItemForeColor(0), 17);
check("ItemBackColor", c.ItemBackColor(0), 18);
c.ItemsClear();

var item = helper.Watch(helper.Make("Norvane.ListItem"));
checkTable(item, record);

check("reports", helper.Report, "");
item = null; c = null; list = null; CollectGarbage();
WScript.Echo("passed: " + good + ", failures: " + bad);
