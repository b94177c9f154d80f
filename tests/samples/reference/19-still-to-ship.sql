select o.RequiredDate, o.OrderID, c.Company || ', ' || c.City, o.Status, o.Remarks
from Orders as o
join Customers as c on c.CustomerID = o.CustomerID
where o.ShippedAt is null and not o.Status = 'C' and o.RequiredDate <= '2026-01-14'
order by o.RequiredDate, o.OrderID
