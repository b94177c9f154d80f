select o.OrderID, c.Company, c.Phone, o.ShippedAt,
       (select round(sum(l.Quantity * l.UnitPrice * (1 - l.Discount)), 2) from "Order Lines" as l where l.OrderID = o.OrderID)
from Orders as o
join Customers as c on c.CustomerID = o.CustomerID
left join Payments as p on p.OrderID = o.OrderID
where p.PaymentID is null and o.Status = 'S' and date(o.ShippedAt) < '2025-11-01'
order by o.OrderID
