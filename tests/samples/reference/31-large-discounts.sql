select l.OrderID, l.LineNo, p.ProductName, l.Quantity, l.Discount, round(l.Quantity * l.UnitPrice * (1 - l.Discount), 2) as total
from "Order Lines" as l
join Products as p on p.ProductID = l.ProductID
where l.Discount >= 0.3
  and not (l.Quantity < 40 and round(l.Quantity * l.UnitPrice * (1 - l.Discount), 2) <= 1000)
  and l.OrderID in (select o.OrderID from Orders as o join Customers as c on c.CustomerID = o.CustomerID where c.Segment = 'W')
order by l.OrderID, l.LineNo
