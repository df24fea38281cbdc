// The list in JScript: cscript list.js
var list = new ActiveXObject("Norvane.nvList");
var cities = ["Rome", "Oslo", "Paris"];

list.Style = 1; // check boxes
for (var i = 0; i < cities.length; i++) list.ItemsAdd(cities[i]);
list.ItemChecked(0) = true;
list.ItemChecked(list.IsInList("P*")) = true;

WScript.Echo("checked: " + list.ItemsCheckCount() + " of " + list.ItemsCount());
