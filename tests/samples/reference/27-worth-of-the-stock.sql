with counted as (
  select s.WarehouseID, p.CategoryID, s.OnHand, s.OnHand * p.PurchasePrice as worth
  from Stock as s, Products as p
  where p.ProductID = s.ProductID and s.CountedAt >= '2025-12-05 12:00:00' and s.OnHand <> 0
)
select w.WarehouseName, k.CategoryName, sum(c.OnHand), round(sum(c.worth), 2)
from counted as c
join Warehouses as w on w.WarehouseID = c.WarehouseID
join Categories as k on k.CategoryID = c.CategoryID
group by c.WarehouseID, c.CategoryID
order by w.WarehouseName, k.CategoryName
