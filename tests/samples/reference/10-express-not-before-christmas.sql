select OrderID, OrderDate, RequiredDate, Status, ShippedAt
from Orders
where Express and strftime('%Y-%m', OrderDate) = '2025-12'
except
select OrderID, OrderDate, RequiredDate, Status, ShippedAt
from Orders
where Status = 'S' and date(ShippedAt) < '2025-12-24'
order by 1
