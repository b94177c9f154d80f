select p.ProductName, w.WarehouseName, s.OnHand, s.ReorderLevel, s.ReorderLevel - s.OnHand as missing
from Stock as s
join Products as p on p.ProductID = s.ProductID and p.Discontinued = 0
join Warehouses as w on w.WarehouseID = s.WarehouseID
where s.ReorderLevel - s.OnHand > 0
order by missing desc, p.ProductName, w.WarehouseName
